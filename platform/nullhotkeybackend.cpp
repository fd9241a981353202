#include "platform/hotkeybackend.h"

namespace
{

class NullHotKeyBackend : public HotKeyBackend
{
public:
    GrabResult grab(QKeyCombination) override { return GrabResult::Unsupported; }
    void release(QKeyCombination) override { }
};

} // namespace

std::unique_ptr<HotKeyBackend> createNullHotKeyBackend()
{
    return std::make_unique<NullHotKeyBackend>();
}
