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
    if (m_clicked && !m_buttonDown)
        giveBack();
    else
        m_pending = true;
}

void FocusReturn::giveBack()
{
    m_pending = false;
    m_clicked = false;
    if (m_watch)
        m_watch->giveBack();
}

bool FocusReturn::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusOut:
        m_pending = false;
        break;
    case QEvent::Leave:
        m_clicked = false;
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        m_buttonDown = true;
        m_clicked = !m_window->isActive();
        break;
    case QEvent::MouseButtonRelease:
    case QEvent::TouchEnd:
        m_buttonDown = false;
        // Before the click takes effect: it may give the keyboard to another window.
        if (m_pending)
            giveBack();
        break;
    default:
        break;
    }
    return false;
}
