#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

class TestFileUrls : public QObject
{
    Q_OBJECT

private slots:
    void namesMayHoldAnything();
    void whatIsShownHasOneLineAndIsUnderstood();

private:
    [[nodiscard]] QString call(const QString &function, const QStringList &arguments);

    QQmlEngine m_engine;
};

QString TestFileUrls::call(const QString &function, const QStringList &arguments)
{
    QQmlComponent component(&m_engine);
    component.setData("import QtQml\nimport 'FileUrls.js' as FileUrls\n"
                      "QtObject { function call(f, a) { return FileUrls[f](...a); } }",
        QUrl("qrc:/test.qml"));
    const std::unique_ptr<QObject> object(component.create());
    QVariant result;
    QMetaObject::invokeMethod(object.get(), "call", Q_RETURN_ARG(QVariant, result),
        Q_ARG(QVariant, function), Q_ARG(QVariant, arguments));
    return result.toString();
}

void TestFileUrls::namesMayHoldAnything()
{
    const QString path = "/home/a\nb/50% #1 \\ <b>/draw.jpg";
    QCOMPARE(call("nameOf", { path }), "draw.jpg");
    const QString folder = call("folderOf", { path });
    QCOMPARE(folder, "/home/a\nb/50% #1 \\ <b>");
    QCOMPARE(QUrl(call("ofFolder", { folder })).toLocalFile(), folder);
    QCOMPARE(call("nameOf", { "draw.jpg" }), "draw.jpg");
}

void TestFileUrls::whatIsShownHasOneLineAndIsUnderstood()
{
    const QString path = "/home/a\nb\u202egpj.exe\r\n<i>";
    const QString shown = call("shown", { path });
    QCOMPARE(shown, "/home/a↵b\ufffdgpj.exe↵<i>");
    QCOMPARE(call("meant", { shown, path }), path);
    QCOMPARE(call("meant", { "/home/a↵b/more", "/home/a\nb" }), "/home/a\nb/more");
    QCOMPARE(call("meant", { "/home/a↵b", "/home/a" }), "/home/a↵b"); // its own name
}

QTEST_MAIN(TestFileUrls)
#include "tst_fileurls.moc"
