#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>

/// A visible window that holds what a few lines of QML describe. Objects are found by their
/// objectName; expressions see the ids of those lines.
class QmlFixture
{
public:
    explicit QmlFixture(const QByteArray &body)
    {
        QTest::failOnWarning(QRegularExpression("."));
        m_engine.addImportPath(":/qt/qml");
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport FluentUI\n"
                          "Window { id: window; width: 500; height: 600; visible: true\n"
                + body + "}",
            QUrl("qrc:/fixture.qml"));
        m_window.reset(qobject_cast<QQuickWindow *>(component.create()));
        if (!m_window)
            qFatal("%s", qPrintable(component.errorString()));
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    [[nodiscard]] QQuickWindow *window() const { return m_window.get(); }

    /// The value of a JavaScript expression in the scope of the lines.
    QVariant eval(const QString &code)
    {
        QQmlExpression expression(qmlContext(m_window.get()), m_window.get(), code);
        const QVariant value = expression.evaluate();
        if (expression.hasError())
            qWarning().noquote() << expression.error().toString();
        return value;
    }
    QString text(const QString &code) { return eval(code).toString(); }
    int number(const QString &code) { return eval(code).toInt(); }
    bool holds(const QString &code) { return eval(code).toBool(); }
    QQuickItem *item(const QString &code) { return eval(code).value<QQuickItem *>(); }

    static QPoint center(const QQuickItem *item)
    {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }
    void click(const QQuickItem *item, Qt::MouseButton button = Qt::LeftButton)
    {
        awaitFrame();
        QTest::mouseClick(m_window.get(), button, Qt::NoModifier, center(item));
    }
    void click(const QString &code, Qt::MouseButton button = Qt::LeftButton)
    {
        click(item(code), button);
    }
    /// Layouts and lists put their items in place before a frame is drawn.
    void awaitFrame()
    {
        QSignalSpy frames(m_window.get(), &QQuickWindow::frameSwapped);
        m_window->update();
        QVERIFY(frames.wait());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_window.get(), key, modifiers);
    }

    /// The first visible item below @p from, popups included, whose property has the value.
    QQuickItem *visibleItem(const char *property, const QVariant &value)
    {
        return search(m_window->contentItem(), property, value);
    }

private:
    static QQuickItem *search(QQuickItem *from, const char *property, const QVariant &value)
    {
        if (!from->isVisible())
            return nullptr;
        if (from->property(property) == value)
            return from;
        for (QQuickItem *child : from->childItems()) {
            if (QQuickItem *found = search(child, property, value))
                return found;
        }
        return nullptr;
    }

    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};
