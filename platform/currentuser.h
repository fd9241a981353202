#pragma once

#include <QString>

/// A text that no two users of the machine share, fit for file names: the user whose rights this
/// process has, whoever owns the home folder.
[[nodiscard]] QString currentUser();

/// Whether something lies at `path`, links not followed, that belongs to another user.
[[nodiscard]] bool belongsToAnotherUser(const QString &path);

/// Whether the process that listens at the other end of a connected local socket has the rights of
/// another user.
[[nodiscard]] bool serverBelongsToAnotherUser(qintptr socket);

/// Whether a file at `path` would be or is a plain file of this user: nothing lies there, or such a
/// file. Opening anything else could block, or write to where a link leads.
[[nodiscard]] bool isPlaceForOwnFile(const QString &path);
