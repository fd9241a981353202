#include "platform/fileidentity.h"

std::optional<FileIdentity> fileIdentity(const QString & /*path*/)
{
    return std::nullopt;
}
