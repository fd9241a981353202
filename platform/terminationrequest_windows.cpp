#include "platform/terminationrequest.h"

// The end of a session closes the windows here, which Qt handles by itself.
TerminationRequest::TerminationRequest() = default;
TerminationRequest::~TerminationRequest() = default;
