// A desktop that nobody looks at: a display of its own, and the busses over which a screen reader reads and
// works the programs on it.
#pragma once

#include "tests/support/Accessible.h"

#include <QProcess>
#include <QTemporaryDir>

namespace norvane::test
{

/// Starts everything by itself and stops it at its end. Whatever does not come in time is a
/// std::runtime_error.
class ReaderDesktop
{
public:
    ReaderDesktop();
    ~ReaderDesktop();
    ReaderDesktop(const ReaderDesktop&) = delete;
    ReaderDesktop& operator=(const ReaderDesktop&) = delete;

    /// Starts a program in its own folder.
    void start(const QString& program);
    /// @return its exit code; -1 when it was killed.
    [[nodiscard]] int waitForEnd();

    /// Waits for a control in view, in the window opened last or in one below it.
    [[nodiscard]] Accessible find(const QString& role, const QString& words);
    /// Waits until no such control is in view.
    void waitUntilGone(const QString& role, const QString& words);
    /// Waits until @p control is, or is not, in @p state.
    void waitFor(const Accessible& control, Spoken state, bool is);
    /// Presses the last of @p captions, an entry in the menus before it.
    void chooseMenu(const QStringList& captions);

private:
    void startHelper(QProcess& process, const QString& program, const QStringList& arguments);
    [[nodiscard]] std::optional<Accessible> seen(const QString& role, const QString& words) const;
    [[nodiscard]] QList<Accessible> windows() const;

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
    QProcess m_display;
    QProcess m_bus;
    QProcess m_program;
    std::optional<QDBusConnection> m_accessibility;
};

} // namespace norvane::test
