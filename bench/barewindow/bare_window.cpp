// The yardstick for start-up and memory: the least that a window of the same controls can be.

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Material"));
    const QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/BareWindow.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
