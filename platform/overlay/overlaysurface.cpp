#include "platform/overlay/overlaysurface.h"

#include "platform/overlay/overlaybackend.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>

namespace
{
constexpr int kHeirSettleMs = 150; // longer than a window manager takes to pass the keyboard on

bool isEraser(const QPointerEvent *event)
{
    return event->pointerType() == QPointingDevice::PointerType::Eraser;
}

std::function<QRect()> &reachable()
{
    static std::function<QRect()> area;
    return area;
}
} // namespace

OverlaySurface::OverlaySurface(QObject *parent) : QObject(parent)
{
    qGuiApp->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](QWindow *focused) {
        if (focused)
            m_lastFocused = focused;
    });
}

OverlaySurface::~OverlaySurface() = default;

void OverlaySurface::setWindow(QWindow *window)
{
    if (window == m_window || m_window)
        return;
    m_window = window;
    m_backend = OverlayBackend::create(window);
    // Qt Quick ends every gesture when the program loses the keyboard; see eventFilter.
    disconnect(qGuiApp, &QGuiApplication::applicationStateChanged, window, nullptr);
    watchScreens();
    emit windowChanged();
}

void OverlaySurface::setAnchor(QWindow *anchor)
{
    if (anchor == m_anchor)
        return;
    m_anchor = anchor;
    emit anchorChanged();
}

void OverlaySurface::setReachable(std::function<QRect()> area)
{
    reachable() = std::move(area);
}

void OverlaySurface::setSeeThrough(bool seeThrough)
{
    if (seeThrough == m_seeThrough)
        return;
    m_seeThrough = seeThrough;
    leaveReachableOpen();
    emit seeThroughChanged();
}

QRect OverlaySurface::reachableArea() const
{
    if (!m_seeThrough || !reachable())
        return {};
    return reachable()().translated(-m_window->position());
}

void OverlaySurface::leaveReachableOpen()
{
    if (!m_window || !m_window->handle())
        return;
    const QRect open = reachableArea();
    if (std::exchange(m_open, open) != open)
        m_backend->leaveOpen(open);
}

void OverlaySurface::watchScreens()
{
    const auto watch = [this](QScreen *screen) {
        connect(screen, &QScreen::geometryChanged, this, &OverlaySurface::coverAgain);
    };
    for (QScreen *screen : QGuiApplication::screens())
        watch(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, watch);
    // Queued: by then Qt has moved the windows of the removed screen elsewhere.
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &OverlaySurface::coverAgain,
        Qt::QueuedConnection);
}

QScreen *OverlaySurface::screenToCover() const
{
    if (m_anchor && m_anchor->screen())
        return m_anchor->screen();
    QScreen *underPointer = QGuiApplication::screenAt(QCursor::pos());
    return underPointer ? underPointer : QGuiApplication::primaryScreen();
}

void OverlaySurface::cover()
{
    if (!m_window)
        return;
    moveToAnchor();
    m_window->showFullScreen();
    takeOver();
}

void OverlaySurface::moveToAnchor()
{
    if (!m_window)
        return;
    QScreen *screen = screenToCover();
    if (!m_window->handle()) {
        m_window->create();
        m_backend->prepareWindow();
    }
    if (m_window->screen() == screen && m_window->geometry() == screen->geometry())
        return;
    // A full-screen window stays on its monitor, so it has to stop being one for the move.
    if (m_window->isVisible())
        m_window->showNormal();
    m_window->setScreen(screen);
    m_window->setGeometry(screen->geometry());
}

void OverlaySurface::takeOver()
{
    if (!m_window)
        return;
    m_covering = true;
    leaveReachableOpen();
    for (QWindow *own : QGuiApplication::topLevelWindows())
        stackOther(own);
    if (!m_passThrough)
        m_backend->takeFocus();
}

void OverlaySurface::coverAgain()
{
    if (!m_covering || !m_window)
        return;
    const QScreen *screen = m_window->screen();
    if (!QGuiApplication::screens().contains(screen))
        screen = screenToCover();
    if (m_window->geometry() != screen->geometry())
        m_window->setGeometry(screen->geometry());
}

void OverlaySurface::setPassThrough(bool passThrough)
{
    if (passThrough == m_passThrough)
        return;
    m_passThrough = passThrough;
    if (!m_passThrough || !m_buttonDown)
        applyPassThrough();
    emit passThroughChanged();
}

void OverlaySurface::applyPassThrough()
{
    if (!m_backend || !m_window->handle() || m_applied == m_passThrough)
        return;
    m_applied = m_passThrough;
    m_backend->setInputTransparent(m_passThrough);
    if (m_passThrough)
        m_backend->returnFocus();
    else
        m_backend->takeFocus();
}

/// A window of this program that closes amid drawing, such as a dialog, leaves its keyboard to the
/// overlay, not to whatever lies beneath.
void OverlaySurface::inheritFocus()
{
    const QWindow *focused = QGuiApplication::focusWindow();
    if (m_covering && !m_passThrough && (!focused || !focused->isVisible()))
        m_backend->takeFocus();
}

/// Or the popup did that it had opened, which is gone by now.
bool OverlaySurface::hadFocusUntilNow(const QObject *hidden) const
{
    return !m_lastFocused || m_lastFocused == hidden || !m_lastFocused->isVisible();
}

bool OverlaySurface::eventFilter(QObject *watched, QEvent *event)
{
    if (!watched->isWindowType() || !m_window)
        return false;
    if (watched != m_window) {
        if (event->type() == QEvent::Expose)
            stackOther(static_cast<QWindow *>(watched));
        else if (event->type() == QEvent::Hide && hadFocusUntilNow(watched)) {
            // Window managers choose an heir themselves; the last word comes after them.
            QMetaObject::invokeMethod(this, &OverlaySurface::inheritFocus, Qt::QueuedConnection);
            QTimer::singleShot(kHeirSettleMs, this, &OverlaySurface::inheritFocus);
        }
        return false;
    }
    // Qt Quick would end the gesture; the pointer still belongs to the window that was pressed.
    const bool losesKeyboard =
        event->type() == QEvent::FocusOut || event->type() == QEvent::WindowDeactivate;
    if (losesKeyboard && m_buttonDown) {
        m_lostKeyboard = true;
        return true;
    }
    followPointer(event);
    return false;
}

void OverlaySurface::followPointer(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: {
        const auto *mouse = static_cast<const QMouseEvent *>(event);
        m_buttonDown = mouse->buttons() != Qt::NoButton;
        if (event->type() == QEvent::MouseButtonPress)
            setEraserTip(m_penErases || isEraser(mouse));
        break;
    }
    // On some systems the mouse follows the pen, and says nothing of its ends.
    case QEvent::TabletPress:
        m_penErases = isEraser(static_cast<const QTabletEvent *>(event));
        return;
    case QEvent::TabletRelease:
        m_penErases = false;
        return;
    case QEvent::Expose:
        // A window manager that was just taking the window in may have missed what it was told.
        m_open = reachableArea();
        m_backend->leaveOpen(m_open);
        return;
    case QEvent::Enter: // the pointer was elsewhere, so no gesture of the overlay's is under way
        m_buttonDown = false;
        leaveReachableOpen(); // panels move their icons about
        break;
    default:
        return;
    }
    if (m_buttonDown)
        return;
    if (m_passThrough)
        applyPassThrough();
    // Queued: the window has yet to see the release.
    if (std::exchange(m_lostKeyboard, false))
        QMetaObject::invokeMethod(this, &OverlaySurface::loseKeyboard, Qt::QueuedConnection);
}

void OverlaySurface::loseKeyboard()
{
    if (!m_window || m_window->isActive())
        return;
    QFocusEvent focusOut(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(m_window, &focusOut);
    QEvent deactivate(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(m_window, &deactivate);
}

void OverlaySurface::setEraserTip(bool eraserTip)
{
    if (eraserTip == m_eraserTip)
        return;
    m_eraserTip = eraserTip;
    emit eraserTipChanged();
}

void OverlaySurface::stackOther(QWindow *other)
{
    if (!other->isExposed()) { // hidden: showing it again forgets where it belongs
        m_stackedAbove.removeOne(other);
        return;
    }
    const bool floats = other->type() == Qt::Popup || other->type() == Qt::ToolTip;
    if (!m_covering || other == m_window || other->parent() || floats
        || m_stackedAbove.contains(other))
        return;
    m_stackedAbove.removeAll(nullptr); // windows that were destroyed meanwhile
    m_stackedAbove.append(other);
    m_backend->keepAbove(other);
}
