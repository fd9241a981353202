#include "canvas/mypainter.h"
#include "tests/settings/throwawaystore.h"

#include <QPointingDevice>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTest>

#include <qpa/qwindowsysteminterface_p.h>

namespace
{

using PenEvents = QWindowSystemInterfacePrivate::TabletEvent;

/// One end of a tablet pen, which reports as the window system's driver does.
class Stylus
{
public:
    Stylus(QWindow *window, QPointingDevice::PointerType tip)
        : m_window(window),
          m_device(QStringLiteral("pen"), tip == QPointingDevice::PointerType::Pen ? 71 : 72,
              QInputDevice::DeviceType::Stylus, tip,
              QInputDevice::Capability::Position | QInputDevice::Capability::Pressure, 1, 1)
    {
        QWindowSystemInterface::registerInputDevice(&m_device);
    }

    void stroke(const QList<QPoint> &points)
    {
        report(points.first(), Qt::NoButton);
        for (const QPoint &point : points)
            report(point, Qt::LeftButton);
        report(points.last(), Qt::NoButton);
    }

private:
    void report(const QPoint &pos, Qt::MouseButtons buttons)
    {
        const double pressure = buttons == Qt::NoButton ? 0.0 : 0.5;
        QWindowSystemInterface::handleTabletEvent(
            m_window, &m_device, pos, m_window->mapToGlobal(pos), buttons, pressure, 0, 0, 0, 0, 0);
        if (PenEvents::platformSynthesizesMouse) // as an X server's pointer follows the pen
            moveMouse(pos, buttons);
        QCoreApplication::processEvents();
    }

    void moveMouse(const QPoint &pos, Qt::MouseButtons buttons)
    {
        const auto type = buttons == m_buttons ? QEvent::MouseMove
            : buttons == Qt::NoButton          ? QEvent::MouseButtonRelease
                                               : QEvent::MouseButtonPress;
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QWindowSystemInterface::handleMouseEvent(
            m_window, pos, m_window->mapToGlobal(pos), buttons, button, type);
        m_buttons = buttons;
    }

    QWindow *m_window;
    Qt::MouseButtons m_buttons;
    QPointingDevice m_device;
};

bool hasMarkAt(MyPainter *canvas, const QPoint &pos)
{
    const bool hit = canvas->selectElementAt(pos);
    canvas->clearSelection();
    return hit;
}

} // namespace

/// The drawing overlay's window and what input devices do to its canvas.
class TestOverlayWindow : public QObject
{
    Q_OBJECT

public:
    static void initMain() { ThrowawayStore::use(); }

private slots:
    void aTabletPenDrawsAndItsOtherEndErases_data();
    void aTabletPenDrawsAndItsOtherEndErases();
};

void TestOverlayWindow::aTabletPenDrawsAndItsOtherEndErases_data()
{
    QTest::addColumn<bool>("mouseFollows");
    QTest::newRow("the pointer follows the pen") << true;
    QTest::newRow("the pen stands for the mouse") << false;
}

void TestOverlayWindow::aTabletPenDrawsAndItsOtherEndErases()
{
    QFETCH(bool, mouseFollows);
    PenEvents::setPlatformSynthesizesMouse(mouseFollows);
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(":/qt/qml"));
    QQmlComponent document(&engine, QUrl(QStringLiteral("qrc:/drawLinux.qml")));
    const std::unique_ptr<QObject> root(document.create());
    QVERIFY2(root, qPrintable(document.errorString()));
    auto *window = qobject_cast<QQuickWindow *>(root.get());
    QVERIFY(QTest::qWaitForWindowExposed(window));
    auto *canvas = root->property("painter").value<MyPainter *>();

    // A real driver has both ends at hand from the start.
    Stylus pen(window, QPointingDevice::PointerType::Pen);
    Stylus eraser(window, QPointingDevice::PointerType::Eraser);

    pen.stroke({ { 100, 100 }, { 150, 100 }, { 200, 100 } });
    QVERIFY(hasMarkAt(canvas, { 150, 100 }));

    // Put down on the mark itself; afterwards the pen has the tool that was chosen before.
    canvas->setDrawMode(MyPainter::LineMode);
    eraser.stroke({ { 150, 100 }, { 150, 110 }, { 150, 130 } });
    QVERIFY(!hasMarkAt(canvas, { 120, 100 }));
    QVERIFY(!canvas->isEraserMode());
    QCOMPARE(canvas->drawMode(), int(MyPainter::LineMode));

    pen.stroke({ { 99, 200 }, { 100, 200 }, { 150, 300 }, { 200, 200 } });
    QVERIFY2(hasMarkAt(canvas, { 150, 200 }), "the straight line");
}

QTEST_MAIN(TestOverlayWindow)
#include "tst_overlaywindow.moc"
