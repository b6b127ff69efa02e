// Box for one line of text of a register.
#pragma once

#include <QLineEdit>

namespace norvane::ui
{

/// A text line with a maximum length and a set of characters. Characters that a register does not have are
/// refused when typed or pasted, since a download would send "?" for it. Fields of registers are often padded
/// with blanks to their full width; typing into such a text pushes its trailing blanks out, so that a full
/// box can be edited like any other. Excess text is refused with a tip that names the limit. A pasted text
/// that alone is too long replaces the whole text, cut, and a tip says so. QLineEdit::textEdited reports
/// typing only, not setting by program.
class TextBox : public QLineEdit
{
    Q_OBJECT

public:
    /// What can be typed.
    enum class Characters {
        Register, ///< all of the registers' character set, Windows-1252
        Digits,
        Hexadecimal, ///< hexadecimal digits in either case
    };

    explicit TextBox(QWidget* parent = nullptr);

    /// Most characters that can be typed; 0 for no limit.
    void setLimit(int characters);
    /// The allowed characters, by default Characters::Register. Other characters of a stored text remain
    /// until they are deleted.
    void setCharacters(Characters characters);
    /// Code of the text's alignment: "0" left, "1" right, "2" centre; any other changes nothing.
    void setJustify(const QString& code);
    /// The largest number that digits may make, such as a time of the day.
    void setLargest(int number);
    /// Shows a stored text completely, even one above the limit: saving must not cut it.
    void showText(const QString& text);

public Q_SLOTS:
    /// In the place of QLineEdit::paste(): the context menu calls it by this name.
    void paste();

Q_SIGNALS:
    /// What the user typed or pasted is above the largest number. The box holds zeros by then.
    void maximumExceeded();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void pasteText(QString pasted);
    void pasteCut(const QString& pasted);
    [[nodiscard]] bool hasRoomFor(qsizetype characters) const;
    [[nodiscard]] int limit() const;
    void tip(const QString& text);
    [[nodiscard]] qsizetype refusedIn(QStringView text) const;
    void makeRoom();

    class Validator;
    Characters m_characters = Characters::Register;
    qsizetype m_refusedHeld = 0; ///< characters of the text shown that could not be typed
    int m_limit = 0;
};

} // namespace norvane::ui
