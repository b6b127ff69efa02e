// See FieldLabels.h.
#include "shell/FieldLabels.h"

#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "shell/MenuTree.h"
#include "shell/ScreenChoice.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{

FieldLabels::FieldLabels(const ApplicationValues& values)
    : m_values(values), m_database(std::make_shared<store::Database>(values.databasePath))
{
    for (const MenuEntry& entry : menuTree()) {
        if (opensScreen(entry))
            m_files.emplace_back(joinPath(values.appPath, targetOf(entry, values)));
    }
}

FieldLabels::Screen FieldLabels::read(const screens::ScreenReader& file) const
{
    screens::ScreenLabels labels(file, m_database, m_values);
    const auto labelOf = [&labels](const QString& field) {
        return labels.field(field);
    };
    screens::TableSource source = screens::tableSource(*m_database, file, m_values, labelOf);
    return {std::move(labels), std::move(source.columns)};
}

const FieldLabels::Screens& FieldLabels::screensOf(const QString& table)
{
    const auto known = m_screens.constFind(table);
    if (known != m_screens.cend())
        return *known;
    Screens screens;
    for (const screens::ScreenReader& file : m_files) {
        if (file.table().table.compare(table, Qt::CaseInsensitive) != 0)
            continue;
        try {
            screens.push_back(read(file));
        } catch (const RuntimeFailure&) {
            continue; // the user sees the failure when the screen is opened
        }
    }
    return *m_screens.insert(table, screens);
}

QString FieldLabels::record(const QString& table, const QString& key)
{
    const Screens& screens = screensOf(table);
    return screens.empty() ? u"%1 %2"_s.arg(table, key).trimmed() : screens.front().labels.record(key);
}

QString FieldLabels::field(const QString& table, const QString& name)
{
    for (const Screen& screen : screensOf(table)) {
        if (QString label = screen.labels.field(name); !label.isEmpty())
            return label;
    }
    return name;
}

QString FieldLabels::value(const QString& table, const QString& field, const QString& plain)
{
    for (const Screen& screen : screensOf(table)) {
        const auto column = std::ranges::find(
            screen.columns, field, [](const screens::TableColumn& each) { return each.field.name; });
        if (column != screen.columns.end() && column->kind() != screens::ControlKind::Check)
            return column->text(store::Value::text(plain));
    }
    return plain;
}

} // namespace norvane::shell
