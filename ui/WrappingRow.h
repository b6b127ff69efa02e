// A row of controls that goes on in the next line where it is too long.
#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace norvane::ui
{

/// Places controls from the left as a line of text, as wide as each wants to be; one that is wider than the
/// row gets its width. The form takes the height from it.
class WrappingRow : public QLayout
{
    Q_OBJECT

public:
    /// @param gap between controls and between lines, in pixels
    explicit WrappingRow(int gap, QWidget* parent = nullptr);
    ~WrappingRow() override;

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override { return static_cast<int>(m_items.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] QSize sizeHint() const override;
    void setGeometry(const QRect& room) override;

private:
    /// @param place what to do with each control and its rectangle. @return the height of all lines.
    template <typename Place>
    int walk(const QRect& room, Place place) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace norvane::ui
