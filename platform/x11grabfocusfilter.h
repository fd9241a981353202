#pragma once

#include <QAbstractNativeEventFilter>

/// Keeps Qt from taking the grab of a pressed hot key for a loss of the keyboard focus: held a
/// little longer, the key would deactivate the window in which it is pressed.
class X11GrabFocusFilter : public QAbstractNativeEventFilter
{
public:
    X11GrabFocusFilter();

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
};
