// Which columns of a table the user wants to see.
#pragma once

#include <QString>
#include <QStringList>

namespace norvane::screens
{

/// The hidden columns of each screen's table, in a file of the user: they belong to no customer.
class ColumnMemory
{
public:
    /// @param path of an initialisation file, which need not exist.
    explicit ColumnMemory(QString path) : m_path(std::move(path)) {}
    /// That in the user's folder for settings.
    [[nodiscard]] static ColumnMemory ofThisUser();

    /// Fields, by the screen file's name; none for a table whose columns were never chosen.
    [[nodiscard]] QStringList hidden(const QString& screenFile) const;
    /// @return false when the file cannot be written.
    bool keepHidden(const QString& screenFile, const QStringList& fields) const;

private:
    QString m_path;
};

} // namespace norvane::screens
