// Opens every window and lists the texts that cannot be read: cut, covered, too pale, or off a small screen.
//   check_windows [--screen 1366x768] [--scale 2] [--font 150] [--dark | --contrast] [--tables]
//                 [--pictures <folder>]
// --tables opens the tables of all screens instead, wider than the screen. --screen is the size of the screen
// in points, 1024 x 768 without it, --scale the number of pixels to a point, --font the size of the system's
// font in percent. What a screen reader could not say is a fault as well, and so is an access letter that
// leads to two controls. Prints a line for each fault; the exit code is 1 if there is one.
#include "scripts/windows/EveryWindow.h"
#include "scripts/windows/LetterCheck.h"
#include "scripts/windows/SpokenControls.h"
#include "scripts/windows/TextCheck.h"
#include "shell/HelpTopics.h"
#include "ui/Appearance.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QMenu>
#include <QScreen>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// What the title of a window takes of the screen.
constexpr int titleHeight = 30;

struct Setting {
    QSize screen;
    int scale = 1;
    int fontPercent = 100;
    bool isDark = false;
    bool hasContrast = false;
    bool isForTables = false;
    QString pictures;
};

Setting settingOf(const QStringList& words)
{
    QCommandLineParser parser;
    parser.addOptions({{u"screen"_s, {}, u"points"_s, u"1024x768"_s},
                       {u"scale"_s, {}, u"n"_s, u"1"_s},
                       {u"font"_s, {}, u"n"_s, u"100"_s},
                       {u"dark"_s, {}},
                       {u"contrast"_s, {}},
                       {u"tables"_s, {}},
                       {u"pictures"_s, {}, u"folder"_s}});
    parser.process(words);
    const QStringList points = parser.value(u"screen"_s).split(u'x');
    return {{points.first().toInt(), points.last().toInt()},
            parser.value(u"scale"_s).toInt(),
            parser.value(u"font"_s).toInt(),
            parser.isSet(u"dark"_s),
            parser.isSet(u"contrast"_s),
            parser.isSet(u"tables"_s),
            parser.value(u"pictures"_s)};
}

/// The screen that the windows open on. Before the application is made.
void setUpScreen(const Setting& setting, const QString& configuration)
{
    const QSize pixels = setting.screen * setting.scale;
    QFile file(configuration);
    if (!file.open(QFile::WriteOnly))
        qFatal("cannot write %s", qPrintable(configuration));
    file.write(
        uR"({"screens": [{"name": "small", "x": 0, "y": 0, "width": %1, "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})"_s
            .arg(pixels.width())
            .arg(pixels.height())
            .toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + configuration.toLocal8Bit());
    qputenv("QT_SCALE_FACTOR", QByteArray::number(setting.scale));
}

/// As desktops have it.
QPalette darkPalette()
{
    QPalette palette(QColor(0x2b, 0x2d, 0x30), QColor(0x2b, 0x2d, 0x30));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
    return palette;
}

/// White on black, as desktops have it for high contrast.
QPalette contrastPalette()
{
    QPalette palette(Qt::black);
    palette.setColor(QPalette::Base, Qt::black);
    palette.setColor(QPalette::Highlight, QColor(0x1a, 0xeb, 0xff));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Disabled, role, QColor(0x3f, 0xf2, 0x3f));
    }
    return palette;
}

/// The user's own font and palette, which the program starts with.
void setUpDesktop(const Setting& setting)
{
    constexpr double percent = 100;
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * setting.fontPercent / percent);
    QApplication::setFont(font);
    if (setting.isDark)
        QApplication::setPalette(darkPalette());
    if (setting.hasContrast)
        QApplication::setPalette(contrastPalette());
}

QString tooLarge(const QWidget& window, QSize room)
{
    if (!qobject_cast<const QMenu*>(&window))
        room.rheight() -= titleHeight;
    return window.isWindow() && room.expandedTo(window.size()) != room
               ? u"%1 x %2 is larger than the screen"_s.arg(window.width()).arg(window.height())
               : QString();
}

/// F1 opens the beginning of the user guide there, which is no help in a form. Boxes and menus are above a
/// form; the splash takes no keys.
QString withoutHelp(const QWidget& window)
{
    QString name = window.objectName();
    if (name.endsWith(u"Window"_s)) // the frame of a form in the main window
        name.chop(6);
    const bool isForm =
        !qobject_cast<const QMenu*>(&window) && !name.endsWith(u"Box"_s) && name != u"frmSplash";
    return isForm && norvane::shell::helpAnchor(name).isEmpty()
               ? u"the form %1 has no place in the user guide"_s.arg(name)
               : QString();
}

class Check
{
public:
    explicit Check(const Setting& setting) : m_setting(setting) {}

    void look(const QString& name, QWidget& window)
    {
        ++m_windows;
        const QImage picture = window.grab().toImage();
        if (!m_setting.pictures.isEmpty())
            picture.save(QDir(m_setting.pictures).filePath(name + u".png"_s));
        for (const QString& fault : QStringList{tooLarge(window, m_setting.screen), withoutHelp(window)} +
                                        norvane::windows::unreadableTexts(window, picture) +
                                        norvane::windows::unspokenControls(window) +
                                        m_letters.repeated(window))
            print(name, fault);
    }
    /// @return the exit code.
    [[nodiscard]] int end()
    {
        if (!m_setting.isForTables) {
            for (const QString& fault : m_letters.unusedExceptions())
                print(u"fixed letters"_s, fault);
        }
        std::printf("%d windows, %d faults\n", m_windows, m_faults);
        return m_faults == 0 ? 0 : 1;
    }

private:
    void print(const QString& name, const QString& fault)
    {
        if (fault.isEmpty())
            return;
        ++m_faults;
        std::printf("%s: %s\n", qPrintable(name), qPrintable(fault));
    }

    const Setting& m_setting;
    norvane::windows::LetterCheck m_letters;
    int m_windows = 0;
    int m_faults = 0;
};

} // namespace

int main(int argc, char** argv)
{
    QStringList words;
    for (int word = 0; word < argc; ++word)
        words += QString::fromLocal8Bit(argv[word]);
    Setting setting = settingOf(words);
    if (!setting.pictures.isEmpty()) {
        QDir().mkpath(setting.pictures);
        setting.pictures = QDir(setting.pictures).absolutePath(); // a shop changes the working directory
    }
    const QTemporaryDir folder;
    setUpScreen(setting, folder.filePath(u"screen.json"_s));
    QApplication application(argc, argv);
    if (QGuiApplication::primaryScreen()->size() != setting.screen)
        qFatal("the screen has another size");
    setUpDesktop(setting);
    norvane::ui::applyAppearance(application);
    Check check(setting);
    const auto look = [&check](const QString& name, QWidget& window) {
        check.look(name, window);
    };
    setting.isForTables ? norvane::windows::lookAtEveryTable(look)
                        : norvane::windows::lookAtEveryWindow(look);
    return check.end();
}
