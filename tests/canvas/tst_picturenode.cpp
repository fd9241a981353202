#include "canvas/picturenode.h"
#include "canvas/tilerevisions.h"
#include "tests/canvas/common/referencepainter.h"
#include "tests/canvas/common/testcanvas.h"

#include <QGuiApplication>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QTest>

namespace
{

constexpr QSize kSize(700, 440); ///< not whole tiles, but whole pixels at every scale
constexpr int kTile = TileRevisions::kTilePx;

/// A canvas that lets its piece of the scene graph be looked at.
class ShownCanvas : public TestCanvas
{
public:
    explicit ShownCanvas(QQuickWindow &window) : TestCanvas(kSize)
    {
        setParentItem(window.contentItem());
    }

    [[nodiscard]] int pieceCount() const { return m_node ? m_node->childCount() : 0; }
    [[nodiscard]] QSGTexture *textureAt(const QPoint &pos) const
    {
        for (QSGNode *child = m_node->firstChild(); child; child = child->nextSibling()) {
            const auto *piece = static_cast<QSGImageNode *>(child);
            if (piece->rect().contains(pos))
                return piece->texture();
        }
        return nullptr;
    }

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override
    {
        return m_node = TestCanvas::updatePaintNode(node, data);
    }

private:
    QSGNode *m_node = nullptr;
};

/// What must stand on a window with nothing but the canvas.
QImage expectedScreen(const ShownCanvas &canvas, const QQuickWindow &window)
{
    const qreal ratio = window.effectiveDevicePixelRatio();
    QImage screen(window.size() * ratio, QImage::Format_RGB32);
    screen.fill(Qt::white);
    const QImage marks = referencePicture(canvas.elements(), kSize, ratio);
    QImage blended = marks.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    blended.setDevicePixelRatio(1);
    QPainter(&screen).drawImage(0, 0, blended);
    return screen;
}

/// At ratios like 1.7 the scene graph blends by another of Qt's ways, which rounds otherwise.
bool looksLike(const QImage &shown, const QImage &expected)
{
    const auto near = [](int a, int b) { return std::abs(a - b) <= 1; };
    if (shown.size() != expected.size())
        return false;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            const QRgb a = shown.pixel(x, y);
            const QRgb b = expected.pixel(x, y);
            if (!near(qRed(a), qRed(b)) || !near(qGreen(a), qGreen(b))
                || !near(qBlue(a), qBlue(b))) {
                qWarning() << "pixel" << x << y << "is" << Qt::hex << a << "not" << b;
                return false;
            }
        }
    }
    return true;
}

} // namespace

/// Runs once for each scale of the screen.
class TestPictureNode : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void theScreenShowsThePicture();
    void onlyChangedTilesAreRenewed();
    void tilesWithoutMarksHaveNoPiece();
    void resizingShowsTheNewSize();
    void hiddenChangesAreShownLater();

private:
    void compareScreen();

    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<ShownCanvas> m_canvas;
};

void TestPictureNode::init()
{
    m_canvas.reset();
    m_window = std::make_unique<QQuickWindow>();
    m_window->resize(kSize);
    m_canvas = std::make_unique<ShownCanvas>(*m_window);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestPictureNode::compareScreen()
{
    const QImage shown = m_window->grabWindow().convertToFormat(QImage::Format_RGB32);
    QVERIFY(looksLike(shown, expectedScreen(*m_canvas, *m_window)));
}

void TestPictureNode::theScreenShowsThePicture()
{
    m_canvas->setPenColor(QColor(200, 30, 60));
    m_canvas->setPenOpacity(0.4); // a piece shown twice, or beside its place, would be seen
    const auto step = [this](auto &&change) {
        change();
        compareScreen();
    };
    step([&] { m_canvas->line({ 5, 7 }, { 690, 430 }); });
    step([&] { m_canvas->drag(MyPainter::RectangleMode, { { 90, 90 }, { 610, 300 } }); });
    step([&] { m_canvas->drag(MyPainter::CircleMode, { { 300, 200 }, { 340, 420 } }); });
    step([&] { m_canvas->addText(QStringLiteral("Ab"), 120, 126, 40); });
    step([&] { m_canvas->beginPaint({ 20, 400 }); });
    for (int x = 20; x < 690; x += 37)
        step([&] { m_canvas->movePaint({ x, 400 - (x * x) % 300 }, false); });
    step([&] { m_canvas->undo(); });
    step([&] { m_canvas->deleteElement({ 5, 7 }); });
    step([&] { m_canvas->selectLastElement(); });
    step([&] { m_canvas->translateSelectedElement(-71, 90); });
    step([&] { m_canvas->undoGradient(); });
    step([&] { m_canvas->tick(3); });
    step([&] { m_canvas->clear(); });
}

void TestPictureNode::onlyChangedTilesAreRenewed()
{
    m_canvas->line({ 10, 10 }, { 60, 60 });
    m_canvas->line({ 600, 10 }, { 660, 60 });
    compareScreen();
    QSGTexture *const left = m_canvas->textureAt({ 20, 20 });
    QSGTexture *const right = m_canvas->textureAt({ 610, 20 });
    QVERIFY(left && right && left != right);
    m_canvas->line({ 610, 60 }, { 660, 10 });
    compareScreen();
    QCOMPARE(m_canvas->textureAt({ 20, 20 }), left);
    QVERIFY(m_canvas->textureAt({ 610, 20 }) != right);
    m_canvas->update();
    QSGTexture *const renewed = m_canvas->textureAt({ 610, 20 });
    compareScreen();
    QCOMPARE(m_canvas->textureAt({ 610, 20 }), renewed);
}

void TestPictureNode::tilesWithoutMarksHaveNoPiece()
{
    compareScreen();
    QCOMPARE(m_canvas->pieceCount(), 0);
    m_canvas->line({ 10, 10 }, { 30, 30 });
    compareScreen();
    QCOMPARE(m_canvas->pieceCount(), 1);
    const int across =
        int(std::ceil(kSize.width() * m_window->effectiveDevicePixelRatio() / kTile));
    m_canvas->line({ 0, 100 }, { kSize.width(), 100 });
    compareScreen();
    QVERIFY(m_canvas->pieceCount() >= across);
    m_canvas->undo();
    compareScreen();
    QCOMPARE(m_canvas->pieceCount(), 1);
    m_canvas->clear();
    compareScreen();
    QCOMPARE(m_canvas->pieceCount(), 0);
}

void TestPictureNode::resizingShowsTheNewSize()
{
    m_canvas->line({ 10, 10 }, { 690, 430 });
    compareScreen();
    m_canvas->setSize({ 300, 200 }); // the old picture, cropped
    const QImage cropped = m_window->grabWindow();
    const qreal ratio = m_window->effectiveDevicePixelRatio();
    QVERIFY(cropped.pixel(int(50 * ratio), int(35 * ratio)) != qRgb(255, 255, 255));
    QCOMPARE(cropped.pixel(int(500 * ratio), int(320 * ratio)), qRgb(255, 255, 255));
    m_canvas->setSize({});
    QCOMPARE(m_window->grabWindow().pixel(int(50 * ratio), int(35 * ratio)), qRgb(255, 255, 255));
    m_canvas->setSize(kSize);
    m_canvas->forceUpdateImage();
    compareScreen();
}

void TestPictureNode::hiddenChangesAreShownLater()
{
    m_canvas->line({ 10, 10 }, { 690, 430 });
    compareScreen();
    m_canvas->setVisible(false);
    m_canvas->line({ 10, 400 }, { 690, 40 });
    m_window->hide();
    m_canvas->line({ 300, 400 }, { 320, 40 });
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_canvas->setVisible(true);
    compareScreen();
}

int main(int argc, char *argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    TestPictureNode test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_picturenode.moc"
