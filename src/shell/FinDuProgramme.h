#pragma once

namespace shell {

/// Thrown to end the process at once with an exit code: no window is closed one by one, no unload step runs.
/// It is no failure, so nothing but the start of the process catches it.
struct FinDuProgramme {
    int code = 0;
};

} // namespace shell
