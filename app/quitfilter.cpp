#include "app/quitfilter.h"

#include <QCoreApplication>
#include <QEvent>

QuitFilter::QuitFilter()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool QuitFilter::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::Quit) {
        return false;
    }
    QCoreApplication::exit();
    return true;
}
