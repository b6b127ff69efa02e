// The user guide in a window.
#pragma once

#include <QWidget>

class QTextBrowser;

namespace norvane::ui
{
class FindBar;
}

namespace norvane::shell
{

/// A separate window that is deleted when it closes, at the latest with @p parent. It can be used while @p
/// parent is modal. It does not use the desktop's browser: an installation without one has help, too, and a
/// modal form cannot cover it.
class GuideWindow : public QWidget
{
    Q_OBJECT

public:
    /// @param path the HTML file with the guide.
    GuideWindow(QString path, QWidget* parent);

    /// Shows the guide at @p anchor, above other windows.
    void showPlace(const QString& anchor);

private:
    void layOut();
    void addKeys();
    /// @param step see ui::FindBar.
    void find(int step);

    QString m_path;
    ui::FindBar* m_find;
    QTextBrowser* m_text;
};

} // namespace norvane::shell
