#include "platform/overlay/screenground.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QScreen>

namespace
{
constexpr int kRepaintMs = 150; // what the windows beneath get for painting the uncovered areas
constexpr int kLeastAlpha = 96; // fainter edges would be a dark rim; highlighters have more

/// A region outside of every window: a window cut to it is mapped and yet shows nothing.
const QRegion kNowhere(-1, -1, 1, 1);

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
} // namespace

ScreenGround::ScreenGround(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    m_repaintTimer.setSingleShot(true);
    m_repaintTimer.setInterval(kRepaintMs);
    connect(&m_repaintTimer, &QTimer::timeout, this, &ScreenGround::takePicture);
}

void ScreenGround::freeze()
{
    if (m_state == State::Freezing || m_state == State::Frozen || !window())
        return;
    leaveState();
    m_state = State::Freezing;
    const auto windows = QGuiApplication::topLevelWindows();
    for (QWindow *own : windows) {
        if (own->isVisible() || own == window()) {
            own->setMask(kNowhere);
            m_hidden.append(own);
        }
    }
    m_repaintTimer.start();
}

void ScreenGround::takePicture()
{
    setPicture(window()->screen()->grabWindow(0).toImage());
    showHiddenWindows();
    m_state = State::Frozen;
    emit frozen();
}

void ScreenGround::cutToMarks()
{
    if (m_state == State::Cut || !window() || !m_marks)
        return;
    leaveState();
    m_state = State::Cut;
    followMarks();
    connect(window(), &QQuickWindow::frameSwapped, this, &ScreenGround::followMarks);
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
        disconnect(window(), &QQuickWindow::frameSwapped, this, &ScreenGround::followMarks);
        window()->setMask({});
    }
    m_state = State::Released;
}

void ScreenGround::showHiddenWindows()
{
    for (const auto &own : std::as_const(m_hidden)) {
        if (own)
            own->setMask({});
    }
    m_hidden.clear();
}

void ScreenGround::followMarks()
{
    if (m_state != State::Cut || !m_marks)
        return;
    QImage picture(m_marks->size().toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    m_marks->paint(&painter);
    painter.end();
    const QRegion shape = visibleRegion(picture);
    // An empty region would mean the whole window.
    window()->setMask(shape.isEmpty() ? kNowhere : shape);
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
