#include "platform/overlay/compositorwatch.h"

class CompositorWatch::Native
{
};

CompositorWatch::CompositorWatch(QObject *parent) : QObject(parent)
{
}

CompositorWatch::~CompositorWatch() = default;

bool CompositorWatch::isComposited() const
{
    return true;
}
