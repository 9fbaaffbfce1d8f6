#pragma once

#include <QAbstractButton>

namespace torvik {

/// How a 3-D push button looks and is pressed.
class ButtonWidget : public QAbstractButton {
public:
    /// What stands on the button in place of a caption.
    enum class Symbol { None, Up, Down, Left, Right };

    explicit ButtonWidget(QWidget* parent = nullptr);

    void SetSymbol(Symbol symbol);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /// Draws what stands on the button, in the area inside its bevel.
    virtual void PaintContent(QPainter& painter, const QRectF& area) const;

private:
    Symbol symbol_ = Symbol::None;
};

} // namespace torvik
