#include "platform/overlay/focusreturn.h"

#include "platform/overlay/focuswatch.h"

#include <QEvent>

FocusReturn::FocusReturn(QObject *parent) : QObject(parent)
{
}

FocusReturn::~FocusReturn() = default;

void FocusReturn::setWindow(QWindow *window)
{
    if (window == m_window)
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    m_watch = window ? FocusWatch::create(window) : nullptr;
    if (window)
        window->installEventFilter(this);
    emit windowChanged();
}

void FocusReturn::giveBackAfterClick()
{
    m_pending = true;
}

bool FocusReturn::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusOut:
        m_pending = false;
        break;
    case QEvent::MouseButtonRelease:
    case QEvent::TouchEnd:
        // Before the click takes effect: it may give the keyboard to another window.
        if (m_pending && m_watch)
            m_watch->giveBack();
        m_pending = false;
        break;
    default:
        break;
    }
    return false;
}
