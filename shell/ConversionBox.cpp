// The box and the texts around customers/FormerCustomer; see ConversionBox.h.
#include "shell/ConversionBox.h"

#include "base/LossQuestion.h"
#include "customers/FormerCustomer.h"
#include "former/ConversionReport.h"
#include "platform/FolderLock.h"
#include "platform/RuntimeFailure.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QCoreApplication>
#include <QProgressDialog>

#include <chrono>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

const auto failureTitle = u"Former Database"_s;

/// Keeps the window painted; the box appears when the work takes noticeably long.
class ConversionBox
{
public:
    explicit ConversionBox(QWidget* window)
        : m_box(u"Looking through the former database..."_s, u"Cancel"_s, 0, 0, window)
    {
        ui::nameControl(m_box, u"ConversionBox"_s);
        m_box.setWindowTitle(u"Convert Customer"_s);
        m_box.setWindowModality(Qt::WindowModal);
        m_box.setMinimumWidth(ui::scaled(QSize(360, 0)).width());
        m_box.setAutoClose(false);
        m_box.setAutoReset(false);
        m_box.reset(); // or it appears by itself
    }

    /// @return false once the user cancelled.
    [[nodiscard]] bool goOn()
    {
        const auto now = std::chrono::steady_clock::now();
        if (now >= m_nextTurn) {
            if (now >= m_appearance && !m_box.isVisible() && !m_box.wasCanceled())
                m_box.show();
            QCoreApplication::processEvents();
            m_nextTurn = now + betweenTurns;
        }
        return !m_box.wasCanceled();
    }
    [[nodiscard]] bool showStored(qint64 stored, qint64 all)
    {
        m_box.setLabelText(u"Storing the records..."_s);
        m_box.setMaximum(static_cast<int>(all));
        m_box.setValue(static_cast<int>(stored));
        return goOn();
    }
    void hide() { m_box.hide(); }

private:
    static constexpr std::chrono::milliseconds betweenTurns{30};
    static constexpr std::chrono::milliseconds untilAppearance{400};

    QProgressDialog m_box;
    std::chrono::steady_clock::time_point m_nextTurn;
    std::chrono::steady_clock::time_point m_appearance = std::chrono::steady_clock::now() + untilAppearance;
};

/// Only storing finds records without a key of their own, after the question was answered.
void showLeftOut(const former::Converted& done, Boxes& boxes)
{
    if (const QString words = former::leftOutInWords(done); !words.isEmpty())
        boxes.message(words, failureTitle, BoxIcon::Exclamation);
}

} // namespace

bool convertAfterQuestion(const QString& customerPath, const QString& programFolder, Boxes& boxes,
                          QWidget* window)
{
    const auto lock = FolderLock::take(customerPath, boxes);
    if (lock == nullptr)
        return false;
    ConversionBox box(window);
    const customers::ConversionWatch watch{[&box] { return box.goOn(); },
                                           [&](const former::Examination& found) {
                                               box.hide();
                                               return askBeforeLoss(boxes, former::conversionQuestion(found));
                                           },
                                           [&box](qint64 stored, qint64 all) {
                                               return box.showStored(stored, all);
                                           }};
    try {
        const auto done = customers::convertCustomer(customerPath, programFolder, watch);
        box.hide();
        showLeftOut(done, boxes);
        return true;
    } catch (const former::FormerError& error) {
        if (error.problem() != former::FormerProblem::Cancelled)
            boxes.message(error.text(), failureTitle, BoxIcon::Critical);
    } catch (const RuntimeFailure& failure) {
        boxes.message(failure.text(), failureTitle, BoxIcon::Critical);
    }
    return false;
}

} // namespace norvane::shell
