// Takes the pictures of the user guide: every screen of the menu, in the main window of a shop whose database
// was just filled from a register of each model.
//   contact_sheet <folder>
// Writes screens-1.png, screens-2.png ... there, and each screen of each model by itself into single/.
#include "platform/RuntimeFailure.h"
#include "shell/MenuTree.h"
#include "shell/ScreenChoice.h"
#include "tests/road/Shop.h"
#include "ui/Appearance.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>
#include <numeric>

namespace
{

using namespace norvane;

constexpr const char* modelNames[] = {"Velmar -V2", "Velmar V2 Card", "Velmar +V3", "Dorvik"};

/// The screens that all models share are shown with the contents of the first of these.
constexpr int modelOrder[] = {2, 0, 1, 3};

constexpr int exchangeBoxes = 37;

constexpr double scale = 2.0 / 3; ///< of a screen on a sheet; texts can still be read
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

QAction& actionOf(const shell::MenuEntry& entry)
{
    for (const QWidget* const window : QApplication::topLevelWidgets()) {
        if (auto* const action = window->findChild<QAction*>(entry.name))
            return *action;
    }
    qFatal("no menu entry %s", entry.name.data());
}

QString captionOf(const shell::MenuEntry& entry)
{
    static const QRegularExpression accessMark(QStringLiteral("&(?=\\S)"));
    return QString(entry.caption).remove(accessMark).trimmed();
}

/// The screen in its frame, with the focus where the user finds it.
QImage picture(const QWidget& screen)
{
    QApplication::processEvents();
    return screen.parentWidget()->grab().toImage();
}

/// Opens the screens of a model one after the other; those that no picture can be taken of are told on the
/// error output.
QVector<Shot> shotsOf(int model)
{
    test::Shop shop(model, 1);
    test::BoxNumbers everyBox(exchangeBoxes);
    std::iota(everyBox.begin(), everyBox.end(), 0);
    shop.upload(everyBox);
    // Nothing uploads the descriptors; a picture needs a record.
    shop.execute("insert into SYSTEMDESCRIPTORS (ID, SYSTEMDESCRIPTORS) values (1, 'TOTAL')");
    QVector<Shot> shots;
    for (const shell::MenuEntry& entry : shell::menuTree()) {
        const QString target =
            shell::opensScreen(entry) ? shell::targetOf(entry, shop.values()).mid(1) : QString();
        if (target.isEmpty() || !QFileInfo::exists(target))
            continue;
        shop.boxes().shown.clear();
        actionOf(entry).setEnabled(true); // some stand in the menu greyed
        try {
            QWidget& screen = shop.openForm(entry.name.data());
            shots.append({target, captionOf(entry), QString::fromLatin1(modelNames[model]), picture(screen)});
            test::Shop::press(screen, "ExitForm");
        } catch (const RuntimeFailure& failure) {
            std::fprintf(stderr, "%s, %s: %s\n", modelNames[model], qPrintable(target), failure.what());
        } catch (const std::exception& failure) {
            const auto& shown = shop.boxes().shown;
            std::fprintf(stderr, "%s, %s: %s %s\n", modelNames[model], qPrintable(target), failure.what(),
                         shown.empty() ? "" : qPrintable(shown.back().text));
        }
        // First the screen goes, then the frame that it leaves behind.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return shots;
}

/// At most 256 colours, its most frequent ones: a fraction of the size, and no eye sees it.
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

/// Pastes shots on a sheet, row below row, and begins a new sheet when one is full.
class Sheets
{
public:
    explicit Sheets(const QDir& folder) : m_folder(folder) { begin(); }

    /// Takes as many of @p shots as one row has room for, the first of them in any case.
    void pasteRow(QVector<Shot>& shots)
    {
        QVector<Shot> row;
        int width = gap;
        for (const Shot& shot : std::as_const(shots)) {
            if (row.isEmpty() || width + sizeOf(shot).width() + gap <= sheetWidth) {
                row.append(shot);
                width += sizeOf(shot).width() + gap;
            }
        }
        shots.removeIf([&](const Shot& shot) {
            return std::any_of(row.cbegin(), row.cend(),
                               [&](const Shot& taken) { return taken.file == shot.file; });
        });
        // The shots come by height, so that the first is the highest.
        const int height = captionHeight + sizeOf(row.constFirst()).height() + gap;
        if (m_bottom + height > sheetHeight) {
            finish();
            begin();
        }
        int left = gap;
        for (const Shot& shot : std::as_const(row)) {
            paste(shot, left);
            left += sizeOf(shot).width() + gap;
        }
        m_bottom += height;
    }

    void finish()
    {
        const QString name = QStringLiteral("screens-%1.png").arg(++m_count);
        if (!withPalette(m_sheet.copy(0, 0, sheetWidth, m_bottom)).save(m_folder.filePath(name)))
            qFatal("cannot write %s", qPrintable(name));
    }

private:
    static QSize sizeOf(const Shot& shot) { return shot.image.size() * scale; }

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
        const QString text =
            QStringLiteral("%1  \u2013  %2  \u2013  %3").arg(shot.caption, shot.file, shot.model);
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

void makeSheets(const QDir& folder)
{
    const QDir single(folder.filePath(QStringLiteral("single")));
    folder.mkpath(single.path());
    QVector<Shot> distinct;
    for (const int model : modelOrder) {
        for (const Shot& shot : shotsOf(model)) {
            const QString name = QStringLiteral("%1-%2.png").arg(shot.file.section(u'.', 0, 0)).arg(model);
            shot.image.save(single.filePath(name));
            const auto isSame = [&](const Shot& other) {
                return other.file.compare(shot.file, Qt::CaseInsensitive) == 0;
            };
            if (std::none_of(distinct.cbegin(), distinct.cend(), isSame))
                distinct.append(shot);
        }
    }
    std::stable_sort(distinct.begin(), distinct.end(), [](const Shot& left, const Shot& right) {
        return left.image.height() > right.image.height();
    });
    std::printf("%d screens\n", static_cast<int>(distinct.size()));
    Sheets sheets(folder);
    while (!distinct.isEmpty())
        sheets.pasteRow(distinct);
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
    // The shops work in folders of their own.
    makeSheets(QDir(QDir(QString::fromLocal8Bit(argv[1])).absolutePath()));
    return 0;
}
