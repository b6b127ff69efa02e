// The array of check boxes of the function key editor.
#pragma once

#include "keys/functions/FunctionKeys.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QGridLayout;

namespace norvane::keys
{

/// Boxes "Check1_0" to "Check1_23" in three columns: those of flag1, of flag2, and of the two others, which
/// have few boxes on every key. Boxes that are shown move up, and none ever changes its column. The size fits
/// the key with the most options and never changes.
class OptionColumns : public QWidget
{
    Q_OBJECT

public:
    explicit OptionColumns(QWidget* parent = nullptr);

    void showChecks(const QVector<KeyControls::Tick>& checks);
    /// Takes what the user ticked over into @p checks.
    void readTicks(QVector<KeyControls::Tick>& checks) const;

private:
    void makeChecks();
    void fixSize(QGridLayout& grid);

    QVector<QCheckBox*> Check1;
    QLabel* m_noOptions;
};

} // namespace norvane::keys
