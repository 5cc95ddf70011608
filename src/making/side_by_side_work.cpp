#include "making/side_by_side_work.h"

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>
#include <vector>

namespace dorvan {

void WorkSideBySide(int count, int threads, const std::function<void(int)>& work) {
    if (threads <= 0) threads = static_cast<int>(std::thread::hardware_concurrency());
    std::atomic<int> next = 0;
    const auto takeOver = [&] {
        for (int number = next++; number < count; number = next++) work(number);
    };
    std::vector<std::jthread> helpers;
    try {
        for (int thread = 1; thread < std::min(threads, count); ++thread) helpers.emplace_back(takeOver);
    } catch (const std::system_error&) { // the machine gives no more: those there do it
    }
    takeOver();
}

} // namespace dorvan
