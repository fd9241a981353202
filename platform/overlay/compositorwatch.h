#pragma once

#include <QObject>
#include <QQmlEngine>

#include <memory>

/// Tells whether the desktop shows what lies beneath a transparent window.
class CompositorWatch : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool composited READ isComposited NOTIFY compositedChanged FINAL)

public:
    explicit CompositorWatch(QObject *parent = nullptr);
    ~CompositorWatch() override;

    [[nodiscard]] bool isComposited() const;

signals:
    void compositedChanged();

private:
    class Native;

    std::unique_ptr<Native> m_native; ///< null where every window is composited
};
