#include "saver/covered_screens.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QWindow>
#include <QtMath>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

std::unique_ptr<SaverWindow> WindowOn(QScreen& screen, Qt::WindowFlags flags)
{
    auto window = std::make_unique<SaverWindow>();
    window->setFlags(flags | Qt::FramelessWindowHint);
    window->setTitle(u"The Torvik Vollandry Screen Saver"_s);
    window->setScreen(&screen);
    window->setGeometry(screen.geometry());
    return window;
}

} // namespace

SaverWindows OpenOnAllScreens()
{
    SaverWindows windows;
    for (QScreen* screen : QGuiApplication::screens()) {
        auto window = WindowOn(*screen, Qt::Window | Qt::WindowStaysOnTopHint);
        window->setCursor(Qt::BlankCursor);
        window->showFullScreen();
        windows.push_back(std::move(window));
    }
    if (!windows.empty())
        windows.front()->requestActivate();
    return windows;
}

SaverWindows OpenBehindAll()
{
    SaverWindows windows;
    for (QScreen* screen : QGuiApplication::screens()) {
        auto window = WindowOn(*screen, Qt::BypassWindowManagerHint | Qt::WindowStaysOnBottomHint |
                                            Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus);
        window->show();
        window->lower();
        windows.push_back(std::move(window));
    }
    return windows;
}

HostWindow::HostWindow(quint64 number) : number_(number), window_(QWindow::fromWinId(number)) {}

HostWindow::~HostWindow() = default;

/// Qt does not tell the size of a foreign window, but a picture of it has that size: one row gives
/// the width, one column the height.
std::optional<QSize> HostWindow::Size() const
{
    QScreen* screen = QGuiApplication::primaryScreen();
    if (window_ == nullptr || screen == nullptr)
        return std::nullopt;
    const QPixmap row = screen->grabWindow(number_, 0, 0, -1, 1);
    const QPixmap column = screen->grabWindow(number_, 0, 0, 1, -1);
    if (row.isNull() || column.isNull())
        return std::nullopt;
    return QSize(qCeil(row.deviceIndependentSize().width()), qCeil(column.deviceIndependentSize().height()));
}

/// Qt puts no window on the screen whose parent, in its eyes, is not there. So it first shows one
/// out of sight, of which the desktop is not told, and then moves it into the host.
SaverWindows HostWindow::Open()
{
    constexpr QPoint outOfSight(-10'000, -10'000);
    const QSize size = Size().value_or(QSize(1, 1));
    auto window = std::make_unique<SaverWindow>();
    window->setFlags(Qt::BypassWindowManagerHint | Qt::FramelessWindowHint | Qt::WindowTransparentForInput |
                     Qt::WindowDoesNotAcceptFocus);
    window->setGeometry(QRect(outOfSight, size));
    window->show();
    window->setParent(window_.get());
    window->setGeometry(QRect(QPoint(), size));
    SaverWindows windows;
    windows.push_back(std::move(window));
    return windows;
}

} // namespace torvik
