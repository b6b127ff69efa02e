// What a look-up says of itself, above its lines.
#pragma once

#include "keys/lookups/LookUpRecords.h"

#include <QWidget>

class QCheckBox;
class QGridLayout;
class QLabel;

namespace norvane::ui
{
class TextBox;
}

namespace norvane::keys
{

/// Number, description, what it allows, and which keys open it.
class LookUpFields : public QWidget
{
    Q_OBJECT

public:
    explicit LookUpFields(QWidget* parent);

    void setLookUp(const LookUp& lookUp);
    /// Shows on which keys the look-up is; an empty text for none.
    void showKeys(const QString& places);
    /// Puts what the controls hold into @p lookUp, all but its lines.
    void read(LookUp& lookUp) const;

Q_SIGNALS:
    /// The user ticked or unticked what is allowed on the lines.
    void allowedChanged();

private:
    struct TextRow;
    struct FlagRow;
    [[nodiscard]] static const QVector<TextRow>& textRows();
    [[nodiscard]] static const QVector<FlagRow>& flagRows();
    void addText(const TextRow& row, QGridLayout& grid, int line);
    void addFlag(const FlagRow& row, QGridLayout& grid, int line);

    QVector<ui::TextBox*> m_texts; ///< in the order of textRows()
    QVector<QCheckBox*> m_flags;   ///< in the order of flagRows()
    QLabel* m_keys;
};

} // namespace norvane::keys
