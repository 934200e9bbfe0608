#pragma once

#include <QtGlobal>

#include <algorithm>
#include <ctime>

namespace bench {

// CPU time of this thread: the build machine is shared, and wall time would
// count the time other processes hold the core.
inline qint64 threadNs()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}

// Best of several rounds, in nanoseconds per call.
template <typename F>
double bestOf(int rounds, int repeats, F&& f)
{
    double best = 1e300;
    for (int r = 0; r < rounds; ++r) {
        const qint64 start = threadNs();
        for (int i = 0; i < repeats; ++i)
            f();
        best = std::min(best, double(threadNs() - start) / repeats);
    }
    return best;
}

} // namespace bench
