#include "platform/overlay/screenground.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QQuickPaintedItem>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QScreen>

namespace
{
constexpr int kRepaintMs = 150; // what the windows beneath get for painting the uncovered areas
constexpr int kLeastAlpha = 96; // fainter edges would be a dark rim; highlighters have more

// Regions outside of every window: a window cut to one is mapped and yet shows nothing.
const QRegion kHiddenForPicture(-1, -1, 1, 1);
const QRegion kEmptyOutline(-2, -2, 1, 1);

/// The pixels of `picture` that show something, as horizontal runs.
QRegion visibleRegion(const QImage &picture)
{
    QList<QRect> runs;
    for (int y = 0; y < picture.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const int start = x;
            while (x < picture.width() && qAlpha(line[x]) >= kLeastAlpha)
                ++x;
            if (x > start)
                runs.append(QRect(start, y, x - start, 1));
        }
    }
    QRegion region;
    region.setRects(runs.constData(), static_cast<int>(runs.size()));
    return region;
}

QRegion visiblePixels(QQuickPaintedItem *item)
{
    QImage picture(item->size().toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    item->paint(&painter);
    painter.end();
    return visibleRegion(picture).translated(item->mapToScene({}).toPoint());
}

/// What the item shows, in the window's coordinates.
QRegion shapeOf(QQuickItem *item)
{
    if (!item->isVisible() || item->opacity() == 0.0)
        return {};
    if (auto *painted = qobject_cast<QQuickPaintedItem *>(item))
        return visiblePixels(painted);
    QRegion shape;
    if (item->flags().testFlag(QQuickItem::ItemHasContents))
        shape = item->mapRectToScene(item->boundingRect()).toAlignedRect();
    const auto children = item->childItems();
    for (QQuickItem *child : children)
        shape += shapeOf(child);
    return shape;
}

/// Gone before long by itself, and usually when another window opens: tips, flyouts and notices,
/// but not the windows of settings, which take the keyboard.
bool isFleeting(const QWindow *window)
{
    const bool takesKeys = !window->flags().testFlag(Qt::WindowDoesNotAcceptFocus);
    return (window->type() == Qt::Tool && !takesKeys) || window->type() == Qt::ToolTip
        || window->type() == Qt::Popup;
}
} // namespace

ScreenGround::ScreenGround(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    m_repaintTimer.setSingleShot(true);
    m_repaintTimer.setInterval(kRepaintMs);
    connect(&m_repaintTimer, &QTimer::timeout, this, &ScreenGround::takePicture);
}

ScreenGround::~ScreenGround()
{
    showHiddenWindows();
}

void ScreenGround::freeze()
{
    if (m_state == State::Freezing || m_state == State::Frozen || !window())
        return;
    leaveState();
    m_state = State::Freezing;
    const auto windows = QGuiApplication::topLevelWindows();
    for (QWindow *own : windows) {
        if (!mustHide(own) || own->mask() == kHiddenForPicture) // another ground brings it back
            continue;
        m_hidden.append({ own, own->mask() });
        own->setMask(kHiddenForPicture);
    }
    m_repaintTimer.start();
}

bool ScreenGround::mustHide(const QWindow *own) const
{
    return own == window() || (own->isVisible() && (!m_showsOwnWindows || isFleeting(own)));
}

void ScreenGround::takePicture()
{
    setPicture(window()->screen()->grabWindow(0).toImage());
    showHiddenWindows();
    m_state = State::Frozen;
    emit frozen();
}

void ScreenGround::cut()
{
    if (m_state == State::Cut || !window())
        return;
    leaveState();
    m_state = State::Cut;
    followOutline();
    connect(window(), &QQuickWindow::frameSwapped, this, &ScreenGround::followOutline);
}

void ScreenGround::release()
{
    leaveState();
}

void ScreenGround::leaveState()
{
    m_repaintTimer.stop();
    showHiddenWindows();
    if (m_state == State::Frozen)
        setPicture({});
    if (m_state == State::Cut) {
        disconnect(window(), &QQuickWindow::frameSwapped, this, &ScreenGround::followOutline);
        window()->setMask({});
    }
    m_state = State::Released;
}

void ScreenGround::showHiddenWindows()
{
    for (const auto &hidden : std::as_const(m_hidden)) {
        if (!hidden.window)
            continue;
        hidden.window->setMask(hidden.mask);
        hidden.window->requestUpdate(); // its outline may have changed meanwhile
    }
    m_hidden.clear();
}

void ScreenGround::followOutline()
{
    // Hidden for a picture that another ground takes, the window comes back by itself.
    if (m_state != State::Cut || window()->mask() == kHiddenForPicture)
        return;
    QRegion shape;
    for (QQuickItem *item : std::as_const(m_outline))
        shape += shapeOf(item);
    if (shape.isEmpty()) // which would mean the whole window
        shape = kEmptyOutline;
    if (shape != window()->mask())
        window()->setMask(shape);
}

void ScreenGround::setPicture(const QImage &picture)
{
    m_picture = picture;
    m_pictureChanged = true;
    update();
}

QSGNode *ScreenGround::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    if (m_picture.isNull()) {
        delete old;
        return nullptr;
    }
    auto *node = static_cast<QSGImageNode *>(old);
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        m_pictureChanged = true;
    }
    if (m_pictureChanged) {
        node->setTexture(window()->createTextureFromImage(m_picture));
        m_pictureChanged = false;
    }
    node->setRect(boundingRect());
    return node;
}
