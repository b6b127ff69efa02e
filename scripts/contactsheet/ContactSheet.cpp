// Makes the pictures of the user guide: every screen of the menu, filled from a register of each model.
//   contact_sheet <folder>
// Writes screens-1.png, screens-2.png ... there, and each screen of each model as a separate file in single/.
#include "scripts/windows/FilledShop.h"
#include "ui/Appearance.h"

#include <QApplication>
#include <QDir>
#include <QHash>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;

constexpr QSize desktop{1600, 1200};

constexpr double scale = 2.0 / 3; ///< texts can still be read
constexpr int sheetWidth = 1500;
constexpr int sheetHeight = 2000;
constexpr int gap = 16;
constexpr int captionHeight = 36;

struct Shot {
    QString file;
    QString caption;
    QString model;
    QImage image;
};

QString captionOf(const shell::MenuEntry& entry)
{
    static const QRegularExpression accessMark(u"&(?=\\S)"_s);
    return QString(entry.caption).remove(accessMark).trimmed();
}

/// The screen with its frame.
QImage picture(const QWidget& screen)
{
    QApplication::processEvents();
    return screen.parentWidget()->grab().toImage();
}

/// Opens the screen of @p entry, takes its picture and closes it. @throws what the screen throws.
QImage pictureOf(windows::FilledShop& shop, const shell::MenuEntry& entry)
{
    QWidget& screen = shop.openScreen(entry);
    QImage image = picture(screen);
    test::press(screen, "ExitForm");
    return image;
}

/// Pictures of all screens of a model; reports on standard error which could not be opened.
QVector<Shot> shotsOf(int model)
{
    windows::FilledShop shop(model);
    shop.frame().resize(desktop); // the largest screens would scroll on a small one
    QVector<Shot> shots;
    for (const shell::MenuEntry& entry : shell::menuTree()) {
        const QString target = shop.screenFile(entry);
        if (target.isEmpty())
            continue;
        try {
            const QString name = QString::fromLatin1(windows::modelNames[model]);
            shots.append({target, captionOf(entry), name, pictureOf(shop, entry)});
        } catch (const std::exception& failure) {
            std::fprintf(stderr, "%s, %s: %s %s\n", windows::modelNames[model], qPrintable(target),
                         failure.what(), qPrintable(shop.lastText()));
        }
        windows::deleteClosed();
    }
    return shots;
}

/// Keeps the 256 most frequent colours: the file is much smaller and looks the same.
QImage withPalette(const QImage& image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QVector<QRgb> colours = counts.keys();
    std::sort(colours.begin(), colours.end(),
              [&](QRgb left, QRgb right) { return counts[left] > counts[right]; });
    constexpr qsizetype most = 256;
    return image.convertToFormat(QImage::Format_Indexed8, colours.mid(0, most));
}

/// Pastes shots on sheets, row by row; a full sheet is saved and a new one begun.
class Sheets
{
public:
    explicit Sheets(const QDir& folder) : m_folder(folder) { begin(); }

    /// Moves as many of @p shots to the sheet as a row has room for, but at least the first.
    void pasteRow(QVector<Shot>& shots)
    {
        const QVector<Shot> row = takeRow(shots);
        // The shots are sorted by height.
        const int height = captionHeight + sizeOf(row.constFirst()).height() + gap;
        if (m_bottom + height > sheetHeight) {
            finish();
            begin();
        }
        int left = gap;
        for (const Shot& shot : row) {
            paste(shot, left);
            left += sizeOf(shot).width() + gap;
        }
        m_bottom += height;
    }

    void finish()
    {
        const QString name = u"screens-%1.png"_s.arg(++m_count);
        if (!withPalette(m_sheet.copy(0, 0, sheetWidth, m_bottom)).save(m_folder.filePath(name)))
            qFatal("cannot write %s", qPrintable(name));
    }

private:
    static QSize sizeOf(const Shot& shot) { return shot.image.size() * scale; }

    static QVector<Shot> takeRow(QVector<Shot>& shots)
    {
        QVector<Shot> row;
        int width = gap;
        shots.removeIf([&](const Shot& shot) {
            const int wider = width + sizeOf(shot).width() + gap;
            const bool fits = row.isEmpty() || wider <= sheetWidth;
            if (fits) {
                row.append(shot);
                width = wider;
            }
            return fits;
        });
        return row;
    }

    void begin()
    {
        m_sheet = QImage(sheetWidth, sheetHeight, QImage::Format_RGB32);
        m_sheet.fill(Qt::white);
        m_bottom = 0;
    }

    void paste(const Shot& shot, int left)
    {
        QPainter painter(&m_sheet);
        painter.setPen(ui::colours::text);
        const QSize size = sizeOf(shot);
        const QString text = u"%1  \u2013  %2  \u2013  %3"_s.arg(shot.caption, shot.file, shot.model);
        painter.drawText(QRect(left, m_bottom, size.width(), captionHeight),
                         Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap, text);
        painter.drawImage(left, m_bottom + captionHeight,
                          shot.image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }

    QDir m_folder;
    QImage m_sheet;
    int m_count = 0;
    int m_bottom = 0;
};

/// All screens, each file once, the highest first. Saves every picture of every model into @p single.
QVector<Shot> takeShots(const QDir& single)
{
    QVector<Shot> distinct;
    for (const int model : windows::modelOrder) {
        for (const Shot& shot : shotsOf(model)) {
            const QString name = u"%1-%2.png"_s.arg(shot.file.section(u'.', 0, 0)).arg(model);
            shot.image.save(single.filePath(name));
            const auto isSame = [&](const Shot& other) {
                return other.file.compare(shot.file, Qt::CaseInsensitive) == 0;
            };
            if (std::none_of(distinct.cbegin(), distinct.cend(), isSame))
                distinct.append(shot);
        }
    }
    std::ranges::stable_sort(distinct, std::greater(), [](const Shot& shot) { return shot.image.height(); });
    return distinct;
}

void makeSheets(const QDir& folder)
{
    const QDir single(folder.filePath(u"single"_s));
    folder.mkpath(single.path());
    QVector<Shot> shots = takeShots(single);
    std::printf("%d screens\n", static_cast<int>(shots.size()));
    Sheets sheets(folder);
    while (!shots.isEmpty())
        sheets.pasteRow(shots);
    sheets.finish();
}

} // namespace

int main(int argc, char** argv)
{
    // Pictures need no display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: contact_sheet <folder>\n", stderr);
        return 2;
    }
    ui::applyAppearance(application);
    // Absolute, since a shop changes the working directory.
    makeSheets(QDir(QDir(QString::fromLocal8Bit(argv[1])).absolutePath()));
    return 0;
}
