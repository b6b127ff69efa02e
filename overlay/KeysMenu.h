// The menu of what is done to several keys of an overlay at once.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <vector>

class QMenu;
class QMenuBar;
class QWidget;

namespace norvane::overlay
{

class DocumentEditor;
class FindDialog;
class KeyboardView;
class StyleChooser;
struct TextCell;

/// Works on the selected keys, and on the current key if none is selected. Colours and a font that the user
/// chooses while keys are selected go to them at once. Each command is one step of the history.
class KeysMenu : public QObject
{
    Q_OBJECT

public:
    /// @param databasePath of the customer whose programme says what keys do. All others must outlive this.
    KeysMenu(DocumentEditor& editor, KeyboardView& keyboard, StyleChooser& style, QString databasePath,
             QWidget* form);

    QMenu& addTo(QMenuBar& bar);

Q_SIGNALS:
    /// What the status bar says.
    void noticed(const QString& text);

private:
    using Handler = void (KeysMenu::*)();
    struct Entry;

    void selectAll();
    void selectColumn();
    void selectKind();
    void giveSample();
    void giveFont();
    void makeBold();
    void makeItalic();
    void makeLarger() { resize(1); }
    void makeSmaller() { resize(-1); }
    void colourByGroup();
    void setWholeWords();
    void find();

    void giveColours(bool givesBackground, bool givesTextColour);
    void change(const QString& name, const std::function<void(TextCell&)>& work);
    void toggle(const QString& name, const std::function<bool&(TextCell&)>& style);
    void resize(int steps);
    void connectStyle();
    void showSelection();

    DocumentEditor& m_editor;
    KeyboardView& m_keyboard;
    StyleChooser& m_style;
    QString m_databasePath;
    QWidget* m_form;
    QPointer<FindDialog> m_find;
    int m_group = 0; ///< whose keys are the selection; 0 if they are not a group's
};

} // namespace norvane::overlay
