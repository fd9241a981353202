#pragma once

#include <QObject>

#include <memory>

/// The request to finish that the operating system delivers: a terminate signal on Unix, a close
/// message to a hidden window on Windows. One instance per process; a request that arrives before
/// the event loop runs is kept.
class StopRequest : public QObject
{
    Q_OBJECT

public:
    explicit StopRequest(QObject *parent = nullptr);
    ~StopRequest() override;

signals:
    /// May come more than once.
    void requested();

private:
    struct Platform;
    std::unique_ptr<Platform> m_platform;
};
