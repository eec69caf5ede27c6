// How the tool ends.
#pragma once

namespace kestrel {

/// Exit statuses of the tool; a failure is all that isn't the user's doing, and what lint finds.
enum ExitStatus { success = 0, failure = 1, wrongUsage = 2 };

}  // namespace kestrel
