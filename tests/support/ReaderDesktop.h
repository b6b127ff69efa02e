// A hidden desktop: a separate display, and the busses over which a screen reader reads and operates the
// programs on it.
#pragma once

#include "tests/support/Accessible.h"

#include <QtCore>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace norvane::test
{

/// Starts everything by itself and stops it at its end. Whatever does not appear in time is a
/// std::runtime_error.
class ReaderDesktop
{
public:
    ReaderDesktop() : m_environment(QProcessEnvironment::systemEnvironment())
    {
        for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CACHE_HOME", "XDG_CONFIG_HOME"})
            m_environment.insert(QLatin1String(name), m_folder.path());
        for (const char* name : {"AT_SPI_BUS_ADDRESS", "WAYLAND_DISPLAY", "XAUTHORITY"})
            m_environment.remove(QLatin1String(name));
        startHelper(
            m_display, u"Xvfb"_s,
            {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1280x1024x24"_s, u"-nolisten"_s, u"tcp"_s});
        m_environment.insert(u"DISPLAY"_s, u':' + firstLine(m_display));
        m_environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        m_environment.insert(u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s, u"1"_s);
        startHelper(m_bus, u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        const QString address = firstLine(m_bus);
        m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);

        // The bus starts the launcher of the accessibility bus on demand, and that one its registry.
        auto session = QDBusConnection::connectToBus(address, u"session"_s);
        const QDBusReply<QString> accessibility = session.call(QDBusMessage::createMethodCall(
            u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s, u"GetAddress"_s));
        if (!accessibility.isValid())
            throw std::runtime_error(accessibility.error().message().toStdString());
        m_accessibility = QDBusConnection::connectToBus(accessibility.value(), u"accessibility"_s);
    }
    ~ReaderDesktop()
    {
        for (const char* name : {"accessibility", "session"})
            QDBusConnection::disconnectFromBus(QLatin1String(name));
        for (QProcess* const process : {&m_program, &m_bus, &m_display})
            stop(*process);
    }
    ReaderDesktop(const ReaderDesktop&) = delete;
    ReaderDesktop& operator=(const ReaderDesktop&) = delete;

    /// Starts a program in its own folder.
    void start(const QString& program)
    {
        m_program.setProcessChannelMode(QProcess::ForwardedChannels);
        m_program.setWorkingDirectory(QFileInfo(program).path());
        startHelper(m_program, program, {});
    }
    /// @return its exit code; -1 when it was killed.
    [[nodiscard]] int waitForEnd()
    {
        return m_program.waitForFinished(lookMilliseconds) && m_program.exitStatus() == QProcess::NormalExit
                   ? m_program.exitCode()
                   : -1;
    }

    /// Waits for a control in view, in the window opened last or in one below it.
    [[nodiscard]] Accessible find(const QString& role, const QString& name)
    {
        std::optional<Accessible> found;
        waitUntil([&] { return (found = seen(role, name)).has_value(); }, role + u' ' + name);
        return *found;
    }
    /// Waits until no such control is in view.
    void waitUntilGone(const QString& role, const QString& name)
    {
        waitUntil([&] { return !seen(role, name).has_value(); }, u"the end of %1 %2"_s.arg(role, name));
    }
    /// Waits until @p control is, or is not, in @p state.
    void waitFor(const Accessible& control, Spoken state, bool is)
    {
        waitUntil([&] { return control.is(state) == is; }, u"the state of "_s + control.name());
    }
    static void waitUntil(const std::function<bool()>& condition, const QString& what)
    {
        for (QDeadlineTimer end(lookMilliseconds); !condition(); QThread::msleep(pauseMilliseconds)) {
            QCoreApplication::processEvents();
            if (end.hasExpired())
                throw std::runtime_error("waited in vain for " + what.toStdString());
        }
    }
    [[nodiscard]] const QDBusConnection& bus() const { return *m_accessibility; }
    /// Presses the last of @p captions, an entry in the menus before it.
    void chooseMenu(const QStringList& captions)
    {
        Accessible entry = find(u"menu bar"_s, {});
        for (const QString& caption : captions) {
            QList<Accessible> entries = entry.children();
            if (!entries.isEmpty() && entries.first().role() == "popup menu"_L1)
                entries = entries.first().children();
            const auto found =
                std::ranges::find_if(entries, [&](const Accessible& one) { return one.name() == caption; });
            if (found == entries.end())
                throw std::runtime_error("no menu entry " + caption.toStdString());
            entry = *found;
        }
        entry.act(u"Press"_s);
    }

private:
    static constexpr int startMilliseconds = 30000;
    static constexpr int endMilliseconds = 5000;
    static constexpr int lookMilliseconds = 30000; ///< a tool on a busy machine takes its time
    static constexpr unsigned long pauseMilliseconds = 50;

    static QString firstLine(QProcess& process)
    {
        for (QDeadlineTimer end(startMilliseconds); !process.canReadLine();) {
            if (end.hasExpired() || !process.waitForReadyRead(static_cast<int>(end.remainingTime())))
                throw std::runtime_error("no answer of " + process.program().toStdString());
        }
        return QString::fromUtf8(process.readLine()).trimmed();
    }

    /// With all that @p process has started.
    static void stop(QProcess& process)
    {
        const auto group = -static_cast<pid_t>(process.processId());
        if (group == 0)
            return;
        ::kill(group, SIGTERM);
        process.waitForFinished(endMilliseconds);
        ::kill(group, SIGKILL);
        process.waitForFinished(endMilliseconds);
    }

    /// In a separate group, which ends with the test even if the test is killed.
    void startHelper(QProcess& process, const QString& program, const QStringList& arguments)
    {
        process.setProcessEnvironment(m_environment);
        process.setChildProcessModifier([] {
            ::setpgid(0, 0);
            ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        });
        process.start(program, arguments);
        if (!process.waitForStarted(startMilliseconds))
            throw std::runtime_error("cannot start " + program.toStdString());
    }
    [[nodiscard]] std::optional<Accessible> seen(const QString& role, const QString& name) const
    {
        for (const Accessible& window : windows()) {
            if (window.role() == role && window.name() == name)
                return window;
            if (auto found = window.find(role, name))
                return found;
        }
        return std::nullopt;
    }
    /// The one opened last comes first.
    [[nodiscard]] QList<Accessible> windows() const
    {
        const Accessible desktop(*m_accessibility, {u"org.a11y.atspi.Registry"_s,
                                                    QDBusObjectPath(u"/org/a11y/atspi/accessible/root"_s)});
        QList<Accessible> windows;
        for (const Accessible& program : desktop.children())
            windows += program.children();
        std::ranges::reverse(windows);
        return windows;
    }

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
    QProcess m_display;
    QProcess m_bus;
    QProcess m_program;
    std::optional<QDBusConnection> m_accessibility;
};

} // namespace norvane::test
