#pragma once

#include "canvas/breathingeffect.h"
#include "canvas/canvasdocument.h"
#include "canvas/canvasevents.h"
#include "canvas/eraser.h"
#include "canvas/numberstamp.h"
#include "canvas/peninput.h"
#include "canvas/pictureexport.h"
#include "canvas/renderer.h"
#include "canvas/selection.h"
#include "canvas/textplacement.h"

#include <QColor>
#include <QQuickPaintedItem>

/// The drawing surface: what QML sees of the canvas. It forwards calls to its collaborators and
/// turns their reports into signals and repaints. All positions are whole pixels in the item's
/// coordinates; everything happens on the GUI thread.
class MyPainter : public QQuickPaintedItem, private CanvasEvents
{
    Q_OBJECT
    Q_CLASSINFO("QML.Element", "auto")

    Q_PROPERTY(bool isBreath READ isBreath WRITE setIsBreath NOTIFY isBreathChanged FINAL)
    Q_PROPERTY(int penSize READ penSize WRITE setPenSize NOTIFY penSizeChanged FINAL)
    Q_PROPERTY(QColor penColor READ penColor WRITE setPenColor NOTIFY penColorChanged FINAL)
    Q_PROPERTY(double penOpacity READ penOpacity WRITE setPenOpacity NOTIFY penOpacityChanged FINAL)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY canUndoChanged FINAL)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY canRedoChanged FINAL)
    Q_PROPERTY(
        bool isEraserMode READ isEraserMode WRITE setIsEraserMode NOTIFY eraserModeChanged FINAL)
    Q_PROPERTY(
        QString textToDraw READ textToDraw WRITE setTextToDraw NOTIFY textToDrawChanged FINAL)
    Q_PROPERTY(int textSize READ textSize WRITE setTextSize NOTIFY textSizeChanged FINAL)
    Q_PROPERTY(int drawMode READ drawMode WRITE setDrawMode NOTIFY drawModeChanged FINAL)
    Q_PROPERTY(
        int fadeOutTime READ fadeOutTime WRITE setFadeOutTime NOTIFY fadeOutTimeChanged FINAL)

public:
    enum DrawMode {
        FreehandMode = DrawingElement::Freehand,
        LineMode = DrawingElement::Line,
        CircleMode = DrawingElement::Circle,
        RectangleMode = DrawingElement::Rectangle,
        ArrowMode = DrawingElement::Arrow,
        TextMode = DrawingElement::Text,
        NumberedCircleMode = DrawingElement::NumberedCircle,
    };
    Q_ENUM(DrawMode)

    explicit MyPainter(QQuickItem *parent = nullptr);

    [[nodiscard]] bool isBreath() const { return m_isBreath; }
    void setIsBreath(bool on);
    [[nodiscard]] int penSize() const { return m_document.pen.size; }
    void setPenSize(int pixels);
    [[nodiscard]] QColor penColor() const { return m_document.pen.color; }
    void setPenColor(const QColor &color);
    [[nodiscard]] double penOpacity() const { return m_document.pen.opacity; }
    /// Clamps to 0.0 to 1.0.
    void setPenOpacity(double opacity);
    [[nodiscard]] bool canUndo() const { return m_document.history.canUndo(); }
    [[nodiscard]] bool canRedo() const { return m_document.history.canRedo(); }
    [[nodiscard]] bool isEraserMode() const { return m_pen.isErasing(); }
    void setIsEraserMode(bool on);
    [[nodiscard]] QString textToDraw() const { return m_textToDraw; }
    void setTextToDraw(const QString &text);
    [[nodiscard]] int textSize() const { return m_textSize; }
    void setTextSize(int points);
    [[nodiscard]] int drawMode() const { return m_pen.drawMode(); }
    void setDrawMode(int mode);
    [[nodiscard]] int fadeOutTime() const { return m_fadeOutTimeMs; }
    void setFadeOutTime(int milliseconds);

    /// For whoever wants all of the picture; on the screen the item shows it in pieces, and nothing
    /// but the picture: neither the painted item's fill colour nor its texture.
    void paint(QPainter *painter) override;
    /// Not by itself: there is no texture of the whole picture.
    [[nodiscard]] bool isTextureProvider() const override;

    /// For checks of what the canvas holds; both stay the canvas's own.
    [[nodiscard]] const CanvasDocument &document() const { return m_document; }
    [[nodiscard]] const QImage &cachedPicture() { return m_renderer.picture(); }
    [[nodiscard]] int lastNumber() const { return m_numbers.lastNumber(); }

signals:
    void isBreathChanged();
    void penSizeChanged();
    void penColorChanged();
    void penOpacityChanged();
    void canUndoChanged();
    void canRedoChanged();
    void eraserModeChanged();
    void textToDrawChanged();
    void textSizeChanged();
    void drawModeChanged();
    void fadeOutTimeChanged();
    void selectedElementChanged();
    /// A finished pen gesture, or a text placed by `addText(pos)`, made this element.
    void elementAdded(QString elementId);

public:
    Q_INVOKABLE void beginPaint(QPoint pos);
    Q_INVOKABLE void movePaint(QPoint pos, bool shiftPressed);
    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();
    /// Fades the oldest element away and removes it; needs something to undo.
    Q_INVOKABLE void undoGradient();
    Q_INVOKABLE void clear();
    Q_INVOKABLE void addText(QPoint pos);
    Q_INVOKABLE void addText(const QString &text, int x, int y, int fontSize);
    /// The folder of the running executable, in native separators.
    Q_INVOKABLE QString getExePath();
    Q_INVOKABLE void endPaint(QPoint pos, bool shiftPressed);
    Q_INVOKABLE bool deleteElement(QPoint clickPos, int tolerance = 10);
    Q_INVOKABLE void renderToImage();
    /// Breathing with this period in milliseconds; 0 stops it.
    Q_INVOKABLE void repeatDraw(int time = BreathingEffect::kDefaultPeriodMs);
    Q_INVOKABLE void forceUpdateImage();
    Q_INVOKABLE bool selectElementAt(QPoint pos);
    Q_INVOKABLE bool selectElementById(const QString &elementId);
    Q_INVOKABLE void translateSelectedElement(int dx, int dy);
    Q_INVOKABLE void scaleSelectedElement(double factor);
    Q_INVOKABLE void scaleSelectedElement(double factorX, double factorY);
    Q_INVOKABLE void rotateSelectedElement(double degrees);
    Q_INVOKABLE void clearSelection();
    Q_INVOKABLE void beginTransformBatch();
    Q_INVOKABLE void endTransformBatch();
    Q_INVOKABLE bool hasSelectedElement() const;
    Q_INVOKABLE QRectF getSelectedElementBoundingRect() const;
    Q_INVOKABLE bool selectLastElement();
    /// Saves the marks at the screen's resolution, beside the executable or in the user's pictures
    /// folder. Returns the path, or an empty text: then `saveError()` says why.
    Q_INVOKABLE QString savePicture();
    Q_INVOKABLE QString saveError() const;
    /// Saves the same picture as this file, in the format that its suffix tells. False when that
    /// fails: then `saveError()` says why.
    Q_INVOKABLE bool savePictureTo(const QString &path);

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;

private:
    void undoStackChanged() override;
    void redoStackChanged() override;
    void selectionChanged() override;
    void elementCompleted(const QString &elementId) override;
    void breathingReported(bool on) override;
    void contentChanged(const Damage &damage, int lowest) override;

    [[nodiscard]] QSize canvasSize() const;
    [[nodiscard]] qreal pixelRatio() const;
    void historyMoved(const Damage &damage);

    bool m_isBreath = false;
    QString m_textToDraw;
    int m_textSize = 20;
    int m_fadeOutTimeMs = 0; ///< for the interface only

    CanvasDocument m_document{ *this };
    Eraser m_eraser{ m_document };
    NumberStamp m_numbers{ m_document };
    PenInput m_pen{ m_document, m_eraser, m_numbers };
    Selection m_selection{ m_document };
    TextPlacement m_text{ m_document };
    BreathingEffect m_breathing{ m_document, this };
    Renderer m_renderer{ m_document.elements };
    PictureExport m_export{ m_document.elements };
};
