// Tab goes down the small forms of the overlay editor, as they are read.
#include "overlay/CorrectionForm.h"
#include "overlay/PrinterSetup.h"
#include "overlay/SheetOptionsForm.h"
#include "tests/support/FormTest.h"
#include "tests/support/RecordingBoxes.h"

#include <QDialog>

#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

int topOf(const QWidget& control, const QWidget& form)
{
    return control.mapTo(&form, QPoint(0, control.height() / 2)).y();
}

/// What Tab reaches above the control before it, from the first control on.
QStringList upwardSteps(QWidget& form)
{
    constexpr int sameLine = 10;
    QStringList steps;
    const QWidget* before = nullptr;
    for (const QWidget* next = form.nextInFocusChain(); next != &form; next = next->nextInFocusChain()) {
        if (!form.isAncestorOf(next) || !next->isVisible() || (next->focusPolicy() & Qt::TabFocus) == 0)
            continue;
        if (before && topOf(*next, form) + sameLine < topOf(*before, form))
            steps += before->objectName() + u" to "_s + next->objectName();
        before = next;
    }
    EXPECT_NE(before, nullptr);
    return steps;
}

TEST(FormOrderTest, tabGoesDownTheForms)
{
    test::RecordingBoxes boxes;
    std::vector<std::unique_ptr<QDialog>> forms;
    forms.push_back(std::make_unique<SheetOptionsForm>(SheetOptions(), 1, nullptr));
    forms.push_back(std::make_unique<PrinterSetup>(PrinterChoice(), nullptr));
    forms.push_back(
        std::make_unique<CorrectionForm>(u"Office"_s, paper::PrinterCorrection(), nullptr, boxes, nullptr));
    for (const auto& form : forms) {
        form->show();
        EXPECT_EQ(upwardSteps(*form).join(u", "_s).toStdString(), "") << qPrintable(form->objectName());
    }
}

} // namespace
} // namespace norvane::overlay
