// See KeyKinds.h.
#include "overlay/KeyKinds.h"

#include "overlay/LevelImport.h"
#include "platform/RuntimeFailure.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr QSize kindsSize{340, 260};
constexpr QSize swatch{22, 16};

} // namespace

KeyKinds::KeyKinds(const Document& document, QString databasePath, QWidget* parent)
    : QDialog(parent), m_document(document), m_databasePath(std::move(databasePath)),
      m_level(new QComboBox(this)), m_list(new QListWidget(this)), m_failure(new QLabel(this)),
      m_select(ui::makeButton(u"SelectButton"_s, u"&Select"_s, this))
{
    setObjectName(u"KeyKinds"_s);
    setWindowTitle(u"Select by Kind or Group"_s);
    ui::nameControl(*m_level, u"KindsLevel"_s);
    ui::nameControl(*m_list, u"Kinds"_s, u"Kinds and groups"_s);
    ui::nameControl(*m_failure, u"KindsFailure"_s);
    for (int level = 1; level <= overlayLevels; ++level)
        m_level->addItem(u"Level %1"_s.arg(level));
    m_level->setCurrentIndex(std::max(0, document.notes().level - 1));
    m_list->setMinimumSize(ui::scaled(kindsSize));
    m_list->setIconSize(swatch);
    m_failure->setWordWrap(true);
    QPushButton* const cancel = ui::makeButton(u"CancelButton"_s, u"&Cancel"_s, this);
    m_select->setDefault(true);
    auto* const form = new QFormLayout;
    form->addRow(u"&Level of the programme:"_s, m_level);
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::groupGap);
    column->addLayout(form);
    column->addWidget(m_list);
    column->addWidget(m_failure);
    column->addLayout(ui::makeButtonRow({m_select, cancel}));
    connect(m_level, &QComboBox::currentIndexChanged, this, &KeyKinds::showLevel);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(m_select, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    showLevel();
    m_list->setFocus();
}

void KeyKinds::showLevel()
{
    m_categories.clear();
    m_failure->clear();
    try {
        m_categories = readCategories(m_document.keyboard(), m_level->currentIndex() + 1, m_databasePath);
    } catch (const RuntimeFailure& failure) {
        m_failure->setText(failure.text());
    }
    m_failure->setVisible(!m_failure->text().isEmpty());
    fill();
}

void KeyKinds::fill()
{
    m_list->clear();
    for (const KeyCategory& category : m_categories) {
        const auto count = static_cast<int>(category.keys.size());
        const QString keys = count == 1 ? u"1 key"_s : u"%1 keys"_s.arg(count);
        m_list->addItem(new QListWidgetItem(iconOf(category), category.name + u": "_s + keys));
    }
    m_list->setCurrentRow(0);
    m_select->setEnabled(!m_categories.empty());
}

/// The colours as a key has them: a field with a letter.
QIcon KeyKinds::iconOf(const KeyCategory& category) const
{
    QPixmap picture(swatch);
    picture.fill(Qt::transparent);
    const auto& groups = m_document.notes().groups;
    if (const auto found = groups.find(category.group); found != groups.end()) {
        QPainter painter(&picture);
        painter.setPen(ui::colours::greyedText);
        painter.setBrush(drawnBackground(found->second.background));
        painter.drawRect(0, 0, swatch.width() - 1, swatch.height() - 1);
        painter.setPen(drawnText(found->second.textColour));
        painter.drawText(picture.rect(), Qt::AlignCenter, u"A"_s);
    }
    return picture;
}

const KeyCategory& KeyKinds::choice() const
{
    return m_categories[static_cast<std::size_t>(m_list->currentRow())];
}

} // namespace norvane::overlay
