#pragma once

#include <QObject>

/// Tells when the system or the user asks the process to end from outside (a logout, a shutdown,
/// an interrupted terminal), so that it can close in order. One per process.
class TerminationRequest : public QObject
{
    Q_OBJECT

public:
    TerminationRequest();
    ~TerminationRequest() override;

signals:
    void received();
};
