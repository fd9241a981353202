// Shows gallery.qml: gallery [document] [picture to save and leave]
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral(":/qt/qml"));
    engine.load(
        QUrl::fromLocalFile(arguments.value(1, QStringLiteral(DRAVELIN_TEST_DIR "/gallery.qml"))));
    if (engine.rootObjects().isEmpty())
        return 1;
    if (arguments.size() > 2) {
        auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
        QTimer::singleShot(1000, window, [window, &arguments] {
            QCoreApplication::exit(window->grabWindow().save(arguments[2]) ? 0 : 1);
        });
    }
    return QGuiApplication::exec();
}
