#pragma once

/// What a failing disk or a sudden end does to the program: calls that change files are counted, and from one of them
/// on they fail, or the process is killed there.
namespace faults {

enum class Kind {
    None,
    AllFail, ///< this call and all later ones; without room (ENOSPC) files can still be cut short and removed
    OneFails,   ///< this call alone
    ShortWrite, ///< half of this write is done, and what follows fails once
    KillBefore,
    KillAfter,
};

/// @param at    which call, from 1
/// @param error of errno.h
void arm(Kind kind, int at, int error);

/// The calls since arm().
int calls();

} // namespace faults
