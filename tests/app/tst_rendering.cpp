#include "app/rendering.h"

#include <QCoreApplication>
#include <QQuickWindow>
#include <QTest>

class TestRendering : public QObject
{
    Q_OBJECT

private slots:
    void softwareRenderersAreRecognised();
    void softwareChoosesTheSoftwareSceneGraph();
    void aBackendThatTheUserChoseStays();
    void hardwareLeavesTheSceneGraphAlone();

private:
    static void resetChoices();
};

void TestRendering::resetChoices()
{
    for (const char *name : { "QT_QUICK_BACKEND", "QSG_RHI_BACKEND", "QSG_RENDER_LOOP" }) {
        qunsetenv(name);
    }
    QQuickWindow::setSceneGraphBackend(QString());
}

void TestRendering::softwareRenderersAreRecognised()
{
    for (const char *name : { "llvmpipe (LLVM 15.0.6, 256 bits)", "Gallium on LLVMPIPE",
             "Mesa DRI SWRast", "Apple Software Renderer" })
        QVERIFY2(isSoftwareRenderer(name), name);
    for (const char *name :
        { "NVIDIA GeForce RTX 3060/PCIe/SSE2", "Mesa Intel(R) UHD Graphics", "" })
        QVERIFY2(!isSoftwareRenderer(name), name);
}

void TestRendering::softwareChoosesTheSoftwareSceneGraph()
{
    resetChoices();
    applyRendering(Rendering::Software);
    QCOMPARE(qgetenv("QT_OPENGL"), "software");
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseSoftwareOpenGL));
    QCOMPARE(QQuickWindow::sceneGraphBackend(), "software");
    QCOMPARE(qgetenv("QSG_RENDER_LOOP"), "basic");
    QCOMPARE(iniValue(Rendering::Software), "software");
}

void TestRendering::aBackendThatTheUserChoseStays()
{
    for (const char *variable : { "QT_QUICK_BACKEND", "QSG_RHI_BACKEND" }) {
        resetChoices();
        qputenv(variable, "opengl");
        qputenv("QSG_RENDER_LOOP", "threaded");
        applyRendering(Rendering::Software);
        QCOMPARE(QQuickWindow::sceneGraphBackend(), QString());
        QCOMPARE(qgetenv("QSG_RENDER_LOOP"), "threaded");
    }
}

void TestRendering::hardwareLeavesTheSceneGraphAlone()
{
    resetChoices();
    applyRendering(Rendering::Hardware);
    QCOMPARE(qgetenv("QT_ANGLE_PLATFORM"), "gl");
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseDesktopOpenGL));
    QCOMPARE(QQuickWindow::sceneGraphBackend(), QString());
    QVERIFY(qEnvironmentVariableIsEmpty("QSG_RENDER_LOOP"));
    QCOMPARE(iniValue(Rendering::Hardware), "hardware");
}

QTEST_APPLESS_MAIN(TestRendering)
#include "tst_rendering.moc"
