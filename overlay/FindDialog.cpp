// See FindDialog.h.
#include "overlay/FindDialog.h"

#include "overlay/DocumentEditor.h"
#include "overlay/KeyboardView.h"
#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/TextBox.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr int findBoxWidth = 260;

} // namespace

FindDialog::FindDialog(DocumentEditor& editor, KeyboardView& keyboard, QWidget* parent)
    : QDialog(parent), m_editor(editor), m_keyboard(keyboard),
      m_order(readingOrder(editor.document().layout())), m_sought(new ui::TextBox(this)),
      m_replacement(new ui::TextBox(this)), m_matchesCase(new QCheckBox(u"&Match capital letters"_s, this)),
      m_outcome(new QLabel(this))
{
    setObjectName(u"FindReplace"_s);
    setWindowTitle(u"Find and Replace"_s);
    QPushButton* const next = ui::makeButton(u"FindNextButton"_s, u"Find &Next"_s, this);
    QPushButton* const one = ui::makeButton(u"ReplaceButton"_s, u"&Replace"_s, this);
    QPushButton* const all = ui::makeButton(u"ReplaceAllButton"_s, u"Replace &All"_s, this);
    QPushButton* const close = ui::makeButton(u"CloseButton"_s, u"&Close"_s, this);
    next->setDefault(true);
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::groupGap);
    column->addWidget(makeBoxes());
    ui::nameControl(*m_outcome, u"FindOutcome"_s);
    column->addWidget(m_outcome);
    column->addLayout(ui::makeButtonRow({next, one, all, close}));
    connect(next, &QPushButton::clicked, this, &FindDialog::findNextCell);
    connect(one, &QPushButton::clicked, this, &FindDialog::replace);
    connect(all, &QPushButton::clicked, this, &FindDialog::replaceAll);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
}

QWidget* FindDialog::makeBoxes()
{
    ui::nameControl(*m_sought, u"FindText"_s);
    ui::nameControl(*m_replacement, u"ReplaceText"_s);
    ui::nameControl(*m_matchesCase, u"MatchCase"_s);
    m_sought->setMinimumWidth(ui::scaled(findBoxWidth));
    auto* const boxes = new QWidget(this);
    auto* const form = new QFormLayout(boxes);
    form->setContentsMargins({});
    form->addRow(u"&Find:"_s, m_sought);
    form->addRow(u"Replace &with:"_s, m_replacement);
    form->addRow(QString(), m_matchesCase);
    return boxes;
}

void FindDialog::openAgain()
{
    show();
    raise();
    activateWindow();
    m_sought->setFocus();
    m_sought->selectAll();
}

/// What was found last is the cell to go on with.
void FindDialog::done(int result)
{
    QDialog::done(result);
    m_keyboard.goTo(m_keyboard.currentCell());
}

SoughtText FindDialog::sought() const
{
    return {m_sought->text(), m_matchesCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive};
}

void FindDialog::findNextCell()
{
    const int cell = findNext(m_editor.document(), m_order, m_keyboard.currentCell(), sought());
    if (cell >= 0) {
        showCell(cell);
    } else {
        m_outcome->setText(u"No key has this text."_s);
    }
    ui::announce(*m_outcome, m_outcome->text());
}

void FindDialog::showCell(int cell)
{
    const OverlayLayout& layout = m_editor.document().layout();
    m_keyboard.makeCurrent(cell);
    m_keyboard.select([key = layout.keyIndex(cell)](KeySelection& keys) { keys.select({key}); });
    m_outcome->setText(placeName(layout, cell));
    const QRect place = m_keyboard.placeOnScreen(cell);
    keepOff(place.adjusted(0, -2 * place.height(), 0, 2 * place.height())); // the whole key
}

/// Moves to the other half of the screen if @p place were hidden otherwise.
void FindDialog::keepOff(const QRect& place)
{
    if (!frameGeometry().intersects(place))
        return;
    const QRect room = ui::roomOnScreen(*this);
    const bool isAbove = place.center().y() > room.center().y();
    move(x(), isAbove ? room.top() : room.bottom() - frameGeometry().height());
}

/// A text over two lines cannot be replaced: nobody could say where its replacement is to be broken.
void FindDialog::replace()
{
    const int cell = m_keyboard.currentCell();
    int replaced = 0;
    m_editor.change(u"Replace"_s, [&](Document& document) {
        replaced = replaceIn(document, {cell}, sought(), m_replacement->text());
    });
    if (replaced == 0 && hasText(m_editor.document(), cell, sought())) {
        m_outcome->setText(u"The text goes on in the next line. Correct it in the key."_s);
        ui::announce(*m_outcome, m_outcome->text());
        return;
    }
    findNextCell();
}

void FindDialog::replaceAll()
{
    int replaced = 0;
    m_editor.change(u"Replace"_s, [&](Document& document) {
        replaced = replaceIn(document, m_order, sought(), m_replacement->text());
    });
    const auto left = std::ranges::count_if(m_order, [this](int cell) {
        const Document& document = m_editor.document();
        return hasText(document, cell, sought()) &&
               !document.cell(cell).text.contains(sought().text, sought().letterCase);
    });
    QString outcome = replaced == 1 ? u"Replaced in 1 line."_s : u"Replaced in %1 lines."_s.arg(replaced);
    if (left > 0)
        outcome += u" Left, since the text goes on in the next line: %1."_s.arg(left);
    m_outcome->setText(outcome);
    ui::announce(*m_outcome, outcome);
}

} // namespace norvane::overlay
