// The array of check boxes of the function key editor.
#pragma once

#include "keys/FunctionKeys.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QGridLayout;

namespace norvane::keys
{

/// Boxes "Check1_0" to "Check1_23" in three columns: those of flag1, of flag2, and of both others, of which
/// no key shows many. Boxes that are shown move up, and none ever changes its column. The size is that which
/// the key with the most options needs, and never changes.
class OptionColumns : public QWidget
{
    Q_OBJECT

public:
    explicit OptionColumns(QWidget* parent = nullptr);

    void showChecks(const QVector<KeyControls::Check>& checks);
    /// Takes what the user ticked over into @p checks.
    void readTicks(QVector<KeyControls::Check>& checks) const;

private:
    void makeChecks();
    void fixSize(QGridLayout& grid);

    QVector<QCheckBox*> Check1;
    QLabel* m_noOptions;
};

} // namespace norvane::keys
