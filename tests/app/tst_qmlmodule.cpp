#include "tests/settings/throwawaystore.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>

/// The native types as documents find them.
class TestQmlModule : public QObject
{
    Q_OBJECT

public:
    static void initMain() { ThrowawayStore::use(); }

private slots:
    void documentsCreateEveryType();
    void theDefinitionStandsAloneInItsFolder();
};

void TestQmlModule::documentsCreateEveryType()
{
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(":/qt/qml"));
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQuick
        import Cpp.MyComponents
        Item {
            property alias canvas: canvas
            readonly property int mode: MyPainter.NumberedCircleMode
            MyPainter { id: canvas; drawMode: 4 }
            SettingsClazz { id: settings; settingsValue: 5 }
            VideoCaptureObject { objectName: "recording " + isRecording() }
        })",
        QUrl());
    const std::unique_ptr<QObject> root(component.create());
    QVERIFY2(root, qPrintable(component.errorString()));
    QCOMPARE(root->property("mode").toInt(), 6);
    const auto *canvas = root->property("canvas").value<QObject *>();
    QCOMPARE(canvas->property("drawMode").toInt(), 4);
    QVERIFY(root->findChild<QObject *>(QStringLiteral("recording false")));
}

void TestQmlModule::theDefinitionStandsAloneInItsFolder()
{
    const QDir folder(QStringLiteral(":/qt/qml/Cpp/MyComponents"));
    QCOMPARE(folder.entryList(), QStringList{ QStringLiteral("qmldir") });
    QFile definition(folder.filePath(QStringLiteral("qmldir")));
    QVERIFY(definition.open(QIODevice::ReadOnly));
    QCOMPARE(definition.readAll(),
        QByteArray("module Cpp.MyComponents\r\n"
                   "typeinfo painter.qmltypes\r\n"
                   "prefer :/qt/qml/Cpp/MyComponents/\r\n\r\n"));
}

QTEST_MAIN(TestQmlModule)
#include "tst_qmlmodule.moc"
