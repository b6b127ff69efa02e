// See KeyGridModel.h.
#include "keys/layout/KeyGridModel.h"

#include <QCoreApplication>
#include <QMimeData>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// In the order of KeyState.
constexpr QLatin1StringView stateWords[] = {
    "Unprogrammed"_L1, "Function"_L1, "PLU"_L1, "Window look-up"_L1, "Missing item"_L1, "Fixed key"_L1,
};

bool isAmong(const KeyCells& cells, KeyCell cell)
{
    return std::ranges::find(cells, cell) != cells.end();
}

/// Another program's keys are not the ones that are marked here.
QString keysFormat()
{
    return u"application/x-norvane-keys-%1"_s.arg(QCoreApplication::applicationPid());
}

} // namespace

KeyGridModel::KeyGridModel(const KeyLevel& level, const KeyEditor& editor, QObject* parent)
    : QAbstractTableModel(parent), m_level(level), m_editor(editor)
{
}

void KeyGridModel::refresh()
{
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void KeyGridModel::setFound(KeyCells cells)
{
    m_found = std::move(cells);
    refresh();
}

void KeyGridModel::setPreview(const std::vector<FilledKey>& keys)
{
    if (keys.empty() && m_preview.isEmpty())
        return;
    m_preview.clear();
    for (const FilledKey& placed : keys)
        m_preview.insert(numberOf(placed.cell), placed.key);
    refresh();
}

const Key& KeyGridModel::shownKey(KeyCell cell) const
{
    const auto preview = m_preview.constFind(numberOf(cell));
    return preview == m_preview.cend() ? m_level.key(cell) : *preview;
}

int KeyGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_level.geometry().rows;
}

int KeyGridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_level.geometry().columns;
}

QVariant KeyGridModel::data(const QModelIndex& index, int role) const
{
    const KeyCell cell = cellOf(index);
    const Key& key = shownKey(cell);
    switch (role) {
    case Qt::DisplayRole:
        return key.text;
    case Qt::ToolTipRole:
        return toolTip(cell);
    case Qt::AccessibleDescriptionRole:
        return spokenState(cell);
    case StateRole:
        return static_cast<int>(key.state);
    case FoundRole:
        return isAmong(m_found, cell);
    case MarkedRole:
        return isAmong(m_editor.marked(), cell);
    case PreviewRole:
        return m_preview.contains(numberOf(cell));
    default:
        return {};
    }
}

/// What the cell shows by its place, its colour and its marks.
QString KeyGridModel::spokenState(KeyCell cell) const
{
    QStringList words;
    if (const auto number = m_level.geometry().keyNumber(cell))
        words += u"Key %1"_s.arg(*number);
    words += stateWords[static_cast<std::size_t>(shownKey(cell).state)];
    if (m_preview.contains(numberOf(cell)))
        words += u"preview"_s;
    if (isAmong(m_editor.marked(), cell))
        words += u"marked"_s;
    if (isAmong(m_found, cell))
        words += u"found"_s;
    return words.join(u", "_s);
}

/// The first line cannot contain "<", so that descriptions are never read as markup.
QString KeyGridModel::toolTip(KeyCell cell) const
{
    const Key& key = shownKey(cell);
    const QString state = stateWords[static_cast<std::size_t>(key.state)];
    const auto number = m_level.geometry().keyNumber(cell);
    if (!number)
        return state + u'\n' + key.text;
    return u"Key %1 of level %2: %3\n%4\nKey link %5, look-up code %6"_s.arg(*number)
        .arg(m_level.level())
        .arg(state, key.text, key.function.isEmpty() ? u"empty"_s : key.function, key.lookUp);
}

Qt::ItemFlags KeyGridModel::flags(const QModelIndex& index) const
{
    const auto shown = QAbstractTableModel::flags(index) | Qt::ItemIsDropEnabled;
    return m_level.geometry().fixedAt(cellOf(index)) == nullptr ? shown | Qt::ItemIsDragEnabled : shown;
}

Qt::DropActions KeyGridModel::supportedDropActions() const
{
    return Qt::MoveAction | Qt::CopyAction;
}

QStringList KeyGridModel::mimeTypes() const
{
    return {keysFormat()};
}

QMimeData* KeyGridModel::mimeData(const QModelIndexList& /*indexes*/) const
{
    auto* const data = new QMimeData;
    data->setData(keysFormat(), {});
    return data;
}

bool KeyGridModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int /*row*/, int /*column*/,
                                const QModelIndex& target)
{
    if (!data->hasFormat(keysFormat()) || !target.isValid())
        return false;
    Q_EMIT dropped(cellOf(target), action == Qt::CopyAction);
    return true;
}

} // namespace norvane::keys
