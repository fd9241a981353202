#pragma once

#include <QString>
#include <QVariantList>

/// The languages for which there are catalogues, in the resources or beside the executable.
namespace LanguageCatalogues
{

/// The language's own name for itself, or the best known name for `code`.
[[nodiscard]] QString displayName(const QString &code);

/// Maps with "code" and "name"; never empty.
[[nodiscard]] QVariantList available();

} // namespace LanguageCatalogues
