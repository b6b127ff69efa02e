// See LevelExchange.h.
#include "keys/layout/LevelExchange.h"

#include "base/LossQuestion.h"
#include "keys/layout/ImportLevel.h"
#include "keys/layout/KeyboardKeys.h"
#include "keys/layout/LevelFile.h"
#include "platform/FailureBox.h"
#include "platform/FilePaths.h"
#include "platform/WholeFile.h"
#include "store/engine/Database.h"
#include "ui/WaitPointer.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr QLatin1StringView levelFiles{"Keyboard levels (*.keys)"};

QByteArray contentOf(const QString& path)
{
    const std::unique_ptr<QFile> file = openToRead(path);
    if (file->size() > largestLevelFile)
        throw LevelFileError(u"This is not a file of a keyboard level."_s);
    return file->readAll();
}

} // namespace

LevelExchange::LevelExchange(KeyLevel& level, KeyEditor& editor,
                             const std::shared_ptr<store::Database>& database,
                             const ApplicationValues& values, Boxes& boxes, QWidget& form)
    : m_level(level), m_editor(editor), m_database(database), m_values(values), m_boxes(boxes), m_form(form),
      m_folder(QDir::homePath())
{
}

void LevelExchange::remember(const QString& path)
{
    m_folder = QFileInfo(path).path();
}

QString LevelExchange::exportLevel()
{
    const QString name = u"%1, level %2.keys"_s.arg(m_values.customerName).arg(m_level.level());
    const QString path =
        m_boxes.fileToSave({u"Export Level"_s, QDir(m_folder).filePath(name), levelFiles, u"keys"_s});
    if (path.isEmpty())
        return {};
    remember(path);
    if (const auto error = replaceWholeFile(path, levelText(m_level, m_values.customerName))) {
        m_boxes.message(u"%1 was not written. %2"_s.arg(QDir::toNativeSeparators(path), error->reason),
                        QString(pleaseCheck), BoxIcon::Exclamation);
        return {};
    }
    const QString outcome = u"Level %1 exported to %2"_s.arg(m_level.level()).arg(QFileInfo(path).fileName());
    const auto left = std::ranges::count_if(
        keysOf(m_level), [](const PlacedKey& placed) { return !isExportable(placed.key); });
    return left == 0 ? outcome
                     : outcome + u". Keys left out, since their number is not valid: %1"_s.arg(left);
}

QString LevelExchange::importLevel()
{
    const QString path = m_boxes.fileToOpen({u"Import Level"_s, m_folder, levelFiles, {}});
    if (path.isEmpty())
        return {};
    remember(path);
    QString outcome;
    openOrTell(m_boxes, [&] { outcome = importFile(path); });
    return outcome;
}

QString LevelExchange::importFile(const QString& path)
{
    LevelImport plan;
    try {
        const ui::WaitPointer wait;
        plan = planLevelImport(readLevelText(contentOf(path), m_level.geometry()), m_level, *m_database);
    } catch (const LevelFileError& error) {
        m_boxes.message(u"%1 was not imported.\r\r%2"_s.arg(QFileInfo(path).fileName(), error.text()),
                        QString(pleaseCheck), BoxIcon::Exclamation);
        return {};
    }
    if (ImportLevel(plan, m_level.level(), &m_form).exec() != QDialog::Accepted)
        return {};
    m_editor.place(plan.keys);
    return u"%1 keys changed. Ctrl+Z takes the import back."_s.arg(plan.changed);
}

} // namespace norvane::keys
