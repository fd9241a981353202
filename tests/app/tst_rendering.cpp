#include "app/rendering.h"

#include <QCoreApplication>
#include <QQuickWindow>
#include <QTest>

class TestRendering : public QObject
{
    Q_OBJECT

private slots:
    void softwareRenderersAreRecognised_data();
    void softwareRenderersAreRecognised();
    void softwareChoosesTheSoftwareSceneGraph();
    void aBackendThatTheUserChoseStays_data();
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

void TestRendering::softwareRenderersAreRecognised_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("software");
    QTest::newRow("Mesa") << QByteArray("llvmpipe (LLVM 15.0.6, 256 bits)") << true;
    QTest::newRow("capitals") << QByteArray("Gallium on LLVMPIPE") << true;
    QTest::newRow("older Mesa") << QByteArray("Mesa DRI SWRast") << true;
    QTest::newRow("named so") << QByteArray("Apple Software Renderer") << true;
    QTest::newRow("graphics card") << QByteArray("NVIDIA GeForce RTX 3060/PCIe/SSE2") << false;
    QTest::newRow("on the processor's chip") << QByteArray("Mesa Intel(R) UHD Graphics") << false;
    QTest::newRow("no name") << QByteArray() << false;
}

void TestRendering::softwareRenderersAreRecognised()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, software);
    QCOMPARE(isSoftwareRenderer(name), software);
}

void TestRendering::softwareChoosesTheSoftwareSceneGraph()
{
    resetChoices();
    applyRendering(Rendering::Software);
    QCOMPARE(qgetenv("QT_OPENGL"), "software");
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseSoftwareOpenGL));
    QCOMPARE(QQuickWindow::sceneGraphBackend(), QStringLiteral("software"));
    QCOMPARE(qgetenv("QSG_RENDER_LOOP"), "basic");
    QCOMPARE(iniValue(Rendering::Software), QStringLiteral("software"));
}

void TestRendering::aBackendThatTheUserChoseStays_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::newRow("scene graph") << QByteArray("QT_QUICK_BACKEND");
    QTest::newRow("graphics interface") << QByteArray("QSG_RHI_BACKEND");
}

void TestRendering::aBackendThatTheUserChoseStays()
{
    QFETCH(QByteArray, variable);
    resetChoices();
    qputenv(variable.constData(), "opengl");
    qputenv("QSG_RENDER_LOOP", "threaded");
    applyRendering(Rendering::Software);
    QCOMPARE(QQuickWindow::sceneGraphBackend(), QString());
    QCOMPARE(qgetenv("QSG_RENDER_LOOP"), "threaded");
}

void TestRendering::hardwareLeavesTheSceneGraphAlone()
{
    resetChoices();
    applyRendering(Rendering::Hardware);
    QCOMPARE(qgetenv("QT_ANGLE_PLATFORM"), "gl");
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseDesktopOpenGL));
    QCOMPARE(QQuickWindow::sceneGraphBackend(), QString());
    QVERIFY(qEnvironmentVariableIsEmpty("QSG_RENDER_LOOP"));
    QCOMPARE(iniValue(Rendering::Hardware), QStringLiteral("hardware"));
}

QTEST_APPLESS_MAIN(TestRendering)
#include "tst_rendering.moc"
