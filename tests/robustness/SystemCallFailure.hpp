#pragma once

#include <functional>
#include <ostream>
#include <vector>

/// How a process ended.
struct Ending {
    int status = 0;  ///< what its function answered; 128 and more is the signal that ended it
    std::vector<int> calls;  ///< the numbers of the system calls it made
};

/// Which system calls of a process fail, and with what. A futex never does.
struct SystemCallFailure {
    int turn = 0;  ///< of all the calls it makes, counted from 1; 0 is none
    int error = 0;
    bool forGood = false;  ///< from then on every call of the same kind fails, not only that one

    /// Whether memory was what the call that failed asked for.
    bool isOfMemory(const Ending& ending) const;
};

std::ostream& operator<<(std::ostream& stream, const SystemCallFailure& failure);
std::ostream& operator<<(std::ostream& stream, const Ending& ending);

/// Whether the system lets a process answer the calls of another.
bool canAnswerSystemCalls();

/// Performs the work in a process of its own, whose system calls are all answered here: as the
/// system would, or with the failure. One that never ends is killed after a hundred thousand calls.
Ending performedWith(const SystemCallFailure& failure, const std::function<int()>& work);
