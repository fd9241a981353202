#include "canvas/mypainter.h"

#include "canvas/fadeeffect.h"
#include "canvas/logtexts.h"
#include "canvas/picturenode.h"
#include "elements/geometry.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QPainter>
#include <QQuickWindow>

#include <algorithm>
#include <cmath>

namespace
{

// A canvas that changes by less is left as it is.
constexpr double kResizeThreshold = 1.0;
constexpr int kFadeMs = FadeEffect::kIntervalMs * FadeEffect::kSteps;

} // namespace

MyPainter::MyPainter(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    qDebug() << CanvasLog::kCreated;
    setRenderTarget(QQuickPaintedItem::Image);
    setAntialiasing(true);
}

void MyPainter::setIsBreath(bool on)
{
    m_isBreath = on;
    emit isBreathChanged();
}

void MyPainter::setPenSize(int pixels)
{
    if (pixels == m_document.pen.size)
        return;
    m_document.pen.size = pixels;
    emit penSizeChanged();
}

void MyPainter::setPenColor(const QColor &color)
{
    if (color == m_document.pen.color)
        return;
    m_document.pen.color = color;
    emit penColorChanged();
}

void MyPainter::setPenOpacity(double opacity)
{
    if (opacity == m_document.pen.opacity)
        return;
    const double below = opacity > 1.0 ? 1.0 : opacity;
    m_document.pen.opacity = below > 0.0 ? below : 0.0;
    qDebug() << CanvasLog::kOpacitySet << m_document.pen.opacity;
    emit penOpacityChanged();
}

void MyPainter::setIsEraserMode(bool on)
{
    if (on == m_pen.isErasing())
        return;
    m_pen.setErasing(on);
    if (on && m_pen.drawMode() != FreehandMode) {
        m_pen.setDrawMode(FreehandMode);
        emit drawModeChanged();
    }
    emit eraserModeChanged();
}

void MyPainter::setTextToDraw(const QString &text)
{
    if (text == m_textToDraw)
        return;
    m_textToDraw = text;
    emit textToDrawChanged();
}

void MyPainter::setTextSize(int points)
{
    if (points == m_textSize)
        return;
    m_textSize = points;
    emit textSizeChanged();
}

void MyPainter::setDrawMode(int mode)
{
    const int left = m_pen.drawMode();
    if (mode == left)
        return;
    if (m_pen.isErasing()) {
        m_pen.setErasing(false);
        emit eraserModeChanged();
    }
    m_pen.setDrawMode(mode);
    if (left == ArrowMode)
        forceUpdateImage();
    emit drawModeChanged();
}

void MyPainter::setFadeOutTime(int milliseconds)
{
    if (milliseconds == m_fadeOutTimeMs)
        return;
    m_fadeOutTimeMs = milliseconds;
    emit fadeOutTimeChanged();
}

void MyPainter::paint(QPainter *painter)
{
    const QImage &picture = m_renderer.picture();
    if (picture.isNull())
        return;
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->drawImage(QPointF(), picture);
}

void MyPainter::beginPaint(QPoint pos)
{
    m_pen.begin(pos);
}

void MyPainter::movePaint(QPoint pos, bool shiftPressed)
{
    if (!(width() > 0) || !(height() > 0))
        return;
    m_pen.move(pos, shiftPressed);
}

void MyPainter::endPaint(QPoint pos, bool shiftPressed)
{
    m_pen.end(pos, shiftPressed);
}

void MyPainter::undo()
{
    Damage damage;
    if (!m_document.history.undo(m_document.elements, damage))
        return;
    if (drawMode() == NumberedCircleMode)
        m_numbers.stepBack();
    historyMoved(damage);
}

void MyPainter::redo()
{
    Damage damage;
    if (!m_document.history.redo(m_document.elements, damage))
        return;
    if (drawMode() == NumberedCircleMode)
        m_numbers.stepForward();
    historyMoved(damage);
}

void MyPainter::historyMoved(const Damage &damage)
{
    contentChanged(damage, 0);
    m_document.reportBothStacks();
}

void MyPainter::undoGradient()
{
    if (!canUndo()) {
        undo();
        return;
    }
    qDebug() << CanvasLog::kFadeStarted << kFadeMs << CanvasLog::kMilliseconds;
    if (!m_document.elements.isEmpty())
        new FadeEffect(m_document, this); // deletes itself when it ends
}

void MyPainter::clear()
{
    qDebug() << CanvasLog::kClearStarted;
    m_pen.abandonGesture();
    setIsBreath(false);
    m_numbers.reset();
    m_document.elements.clear();
    m_document.history.clear();
    m_selection.reset();
    if (width() > 0 && height() > 0)
        m_renderer.rebuild(canvasSize());
    m_document.reportBothStacks();
    emit selectedElementChanged();
    update();
    qDebug() << CanvasLog::kClearDone;
}

void MyPainter::addText(QPoint pos)
{
    m_text.place(m_textToDraw, pos, m_textSize);
}

void MyPainter::addText(const QString &text, int x, int y, int fontSize)
{
    m_text.placePrepared(text, QPoint(x, y), fontSize);
}

QString MyPainter::getExePath()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
}

bool MyPainter::deleteElement(QPoint clickPos, int tolerance)
{
    return m_eraser.deleteAt(clickPos, tolerance);
}

void MyPainter::renderToImage()
{
    m_export.saveBesideExecutable(canvasSize());
}

void MyPainter::repeatDraw(int time)
{
    m_breathing.start(time);
}

void MyPainter::forceUpdateImage()
{
    m_renderer.rebuild(canvasSize());
    update();
}

bool MyPainter::selectElementAt(QPoint pos)
{
    return m_selection.selectAt(pos);
}

bool MyPainter::selectElementById(const QString &elementId)
{
    return m_selection.selectById(elementId);
}

void MyPainter::translateSelectedElement(int dx, int dy)
{
    m_selection.translate(dx, dy);
}

void MyPainter::scaleSelectedElement(double factor)
{
    m_selection.scale(factor);
}

void MyPainter::scaleSelectedElement(double factorX, double factorY)
{
    m_selection.scale(factorX, factorY);
}

void MyPainter::rotateSelectedElement(double degrees)
{
    m_selection.rotate(degrees);
}

void MyPainter::clearSelection()
{
    m_selection.clear();
}

void MyPainter::beginTransformBatch()
{
    m_selection.beginBatch();
}

void MyPainter::endTransformBatch()
{
    m_selection.endBatch();
}

bool MyPainter::hasSelectedElement() const
{
    return m_selection.hasElement();
}

QRectF MyPainter::getSelectedElementBoundingRect() const
{
    return m_selection.boundingRect();
}

bool MyPainter::selectLastElement()
{
    return m_selection.selectLast();
}

QString MyPainter::savePicture()
{
    return m_export.save(canvasSize(), pixelRatio());
}

QString MyPainter::saveError() const
{
    return m_export.error();
}

bool MyPainter::savePictureTo(const QString &path)
{
    return m_export.saveTo(path, canvasSize(), pixelRatio());
}

void MyPainter::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    const double widthChange = std::abs(newGeometry.width() - oldGeometry.width());
    const double heightChange = std::abs(newGeometry.height() - oldGeometry.height());
    if (widthChange <= kResizeThreshold && heightChange <= kResizeThreshold)
        return;
    m_renderer.resize(canvasSize());
    update();
}

void MyPainter::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickPaintedItem::itemChange(change, data);
    if (change != ItemDevicePixelRatioHasChanged && change != ItemSceneChange)
        return;
    if (m_renderer.setDevicePixelRatio(pixelRatio()))
        forceUpdateImage();
}

bool MyPainter::isTextureProvider() const
{
    // The painted item would promise the texture of a node that is not there.
    return QQuickItem::isTextureProvider(); // NOLINT(bugprone-parent-virtual-call)
}

QSGNode *MyPainter::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *pictureNode = static_cast<PictureNode *>(node);
    if (!pictureNode)
        pictureNode = new PictureNode;
    const QImage &picture = m_renderer.picture();
    pictureNode->show(picture, m_renderer.revisions(), *window());
    return pictureNode;
}

void MyPainter::undoStackChanged()
{
    emit canUndoChanged();
}

void MyPainter::redoStackChanged()
{
    emit canRedoChanged();
}

void MyPainter::selectionChanged()
{
    emit selectedElementChanged();
}

void MyPainter::elementCompleted(const QString &elementId)
{
    emit elementAdded(elementId);
}

void MyPainter::breathingReported(bool on)
{
    setIsBreath(on);
}

void MyPainter::contentChanged(const Damage &damage, int lowest)
{
    m_renderer.contentChanged(damage, lowest, canvasSize());
    update();
}

QSize MyPainter::canvasSize() const
{
    return { geometry::truncated(width()), geometry::truncated(height()) };
}

qreal MyPainter::pixelRatio() const
{
    return window() ? window()->effectiveDevicePixelRatio() : 1.0;
}
