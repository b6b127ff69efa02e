// How the user chooses the colours and the font that clicks give to cells.
#pragma once

#include "overlay/DocumentEditor.h"

#include <QFont>

class QLabel;
class QToolBar;
class QWidget;

namespace norvane::overlay
{

class ColourStrip;
class OverlayDialogs;

/// The sample of the current style, the colours used last and the dialogs for all others.
class StyleChooser : public QObject
{
    Q_OBJECT

public:
    /// All arguments must outlive this. @p form is the parent of the controls.
    StyleChooser(CurrentStyle& style, OverlayDialogs& dialogs, QWidget* form);

    void addTo(QToolBar& bar);
    void chooseBackground();
    void chooseTextColour();
    /// @param current the font of the current cell, with which the dialog begins before the first choice.
    void chooseFont(const CellFont& current);
    /// Offers the colours of @p document, except black and white, as colours used last.
    void rememberColours(const Document& document);

Q_SIGNALS:
    void backgroundChosen();
    void textColourChosen();
    void fontChosen();

private:
    void takeBackground(const QColor& colour);
    void takeTextColour(const QColor& colour);
    void showSample();

    CurrentStyle& m_style;
    OverlayDialogs& m_dialogs;
    ColourStrip* m_colours;
    QLabel* Label1;
};

} // namespace norvane::overlay
