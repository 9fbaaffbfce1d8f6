#include "sample/files/in_parallel.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace torvik::sample {

void InParallel(std::size_t count, const std::function<void(std::size_t)>& work)
{
    std::atomic<std::size_t> next{0};
    std::exception_ptr failure;
    std::mutex guard;
    const auto call = [&](std::size_t i) {
        try {
            work(i);
        } catch (...) {
            const std::lock_guard lock(guard);
            failure = std::current_exception();
            next = count;
        }
    };
    const auto run = [&] {
        for (std::size_t i = next++; i < count; i = next++)
            std::thread(call, i).join();
    };
    std::vector<std::thread> workers;
    for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i)
        workers.emplace_back(run);
    for (std::thread& worker : workers)
        worker.join();
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace torvik::sample
