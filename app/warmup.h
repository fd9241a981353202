#pragma once

/// Takes the interface's documents, libraries and fonts into memory, with nothing to be seen or
/// heard of it: for a moment in which the start has to wait for something else. An application
/// object exists.
void warmUpInterface();
