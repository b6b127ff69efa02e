// Text boxes and check boxes by two tables; see LookUpFields.h.
#include "keys/lookups/LookUpFields.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/TextBox.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr int lookUpTextWidth = 120;
constexpr int lookUpNumberWidth = 56;
constexpr int flagColumn = 3;
/// The longest list of keys that a shop has needs two lines.
constexpr int linesOfKeys = 2;

} // namespace

struct LookUpFields::TextRow {
    const char* name;
    const char* label;
    int characters;
    bool isNumber;
    QString LookUp::*text;
};

struct LookUpFields::FlagRow {
    const char* name;
    const char* caption;
    bool LookUp::*flag;
    bool decidesOnLines;
};

const QVector<LookUpFields::TextRow>& LookUpFields::textRows()
{
    static const QVector<TextRow> rows{
        {"WLUNumber", "WLU No", 4, true, &LookUp::number},
        {"description", "Description", 12, false, &LookUp::description},
        {"noofchoices", "# Of Items Choices (0=Unlimited)", 2, true, &LookUp::choices},
        {"linkwlu", "Link To WLU# ( 0=No Link)", 4, true, &LookUp::link},
    };
    return rows;
}

const QVector<LookUpFields::FlagRow>& LookUpFields::flagRows()
{
    static const QVector<FlagRow> rows{
        {"allowcondiment", "Allow Condiment", &LookUp::allowsCondiments, true},
        {"allowplu", "Allow PLU", &LookUp::allowsPlus, true},
        {"allowfunction", "Allow Functions", &LookUp::allowsFunctions, true},
        {"itemmultiply", "Item Multiplication", &LookUp::multiplies, false},
        {"Allowexit", "Allow Exit From Table With Done", &LookUp::allowsExit, false},
    };
    return rows;
}

LookUpFields::LookUpFields(QWidget* parent) : QWidget(parent), m_keys(new QLabel(this))
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(ui::spacing::controlGap);
    grid->setColumnMinimumWidth(flagColumn - 1, ui::spacing::groupGap);
    grid->setColumnStretch(flagColumn, 1);
    for (const TextRow& row : textRows())
        addText(row, *grid, static_cast<int>(m_texts.size()));
    for (const FlagRow& row : flagRows())
        addFlag(row, *grid, static_cast<int>(m_flags.size()));
    ui::nameControl(*m_keys, u"KeysOfWLU"_s);
    m_keys->setWordWrap(true);
    m_keys->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_keys->setMinimumHeight(linesOfKeys * fontMetrics().lineSpacing());
    grid->addWidget(m_keys, grid->rowCount(), 0, 1, flagColumn + 1);
}

void LookUpFields::addText(const TextRow& row, QGridLayout& grid, int line)
{
    auto* const box = new ui::TextBox(this);
    ui::nameControl(*box, QLatin1String(row.name));
    box->setLimit(row.characters);
    box->setFixedWidth(ui::scaled(row.isNumber ? lookUpNumberWidth : lookUpTextWidth));
    if (row.isNumber) {
        box->setCharacters(ui::TextBox::Characters::Digits);
        box->setAlignment(Qt::AlignRight);
    }
    auto* const label = new QLabel(QLatin1String(row.label), this);
    label->setBuddy(box);
    grid.addWidget(label, line, 0);
    grid.addWidget(box, line, 1, Qt::AlignLeft);
    m_texts += box;
}

void LookUpFields::addFlag(const FlagRow& row, QGridLayout& grid, int line)
{
    auto* const box = new QCheckBox(QLatin1String(row.caption), this);
    ui::nameControl(*box, QLatin1String(row.name));
    if (row.decidesOnLines)
        connect(box, &QCheckBox::clicked, this, &LookUpFields::allowedChanged);
    grid.addWidget(box, line, flagColumn);
    m_flags += box;
}

/// A number is shown completely. The description is cut to what the register holds, so that it can be saved.
void LookUpFields::setLookUp(const LookUp& lookUp)
{
    for (qsizetype i = 0; i < m_texts.size(); ++i) {
        const TextRow& row = textRows().at(i);
        m_texts.at(i)->showText(row.isNumber ? lookUp.*row.text : (lookUp.*row.text).left(row.characters));
    }
    for (qsizetype i = 0; i < m_flags.size(); ++i)
        m_flags.at(i)->setChecked(lookUp.*flagRows().at(i).flag);
}

void LookUpFields::showKeys(const QString& places)
{
    m_keys->setText(places.isEmpty() ? u"No key opens this look-up."_s : u"Opened by "_s + places + u'.');
}

void LookUpFields::read(LookUp& lookUp) const
{
    for (qsizetype i = 0; i < m_texts.size(); ++i)
        lookUp.*textRows().at(i).text = m_texts.at(i)->text();
    for (qsizetype i = 0; i < m_flags.size(); ++i)
        lookUp.*flagRows().at(i).flag = m_flags.at(i)->isChecked();
}

} // namespace norvane::keys
