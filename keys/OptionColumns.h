// The array of check boxes of the function key editor.
#pragma once

#include "keys/FunctionKeys.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QVBoxLayout;

namespace norvane::keys
{

/// Boxes "Check1_0" to "Check1_23" in four columns, one for each flag field. Those that are shown move up,
/// and none ever changes its column. The size is that of the widest captions of all keys and never changes.
class OptionColumns : public QWidget
{
    Q_OBJECT

public:
    explicit OptionColumns(QWidget* parent = nullptr);

    void showChecks(const QVector<KeyControls::Check>& checks);
    /// Takes what the user ticked over into @p checks.
    void readTicks(QVector<KeyControls::Check>& checks) const;

private:
    [[nodiscard]] QVBoxLayout* makeColumn(int flag);

    QVector<QCheckBox*> Check1;
    QLabel* m_noOptions;
};

} // namespace norvane::keys
