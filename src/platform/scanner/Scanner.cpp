#include "Scanner.h"

#include "Device.h"
#include "Library.h"

#include <QPromise>

#include <chrono>
#include <condition_variable>
#include <csignal>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

namespace platform::scanner {

namespace {

constexpr std::chrono::seconds kPatience{2};

using Task = std::function<void()>;

/// Drivers have threads and processes of their own write into pipes, which a cancelled scan closes; the signal for
/// that would end the program. They inherit what this thread blocks.
void ignoreBrokenPipes() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

} // namespace

/// Shared with the thread, which may outlive the Scanner.
class Scanner::Tasks {
public:
    void add(Task task) {
        const std::lock_guard lock(m_mutex);
        m_waiting.push_back(std::move(task));
        m_changed.notify_all();
    }

    /// Waits for the task under way, for as long as patience lasts; those behind it are dropped.
    void stop() {
        std::unique_lock lock(m_mutex);
        m_stopped = true;
        m_waiting.clear();
        m_changed.notify_all();
        m_changed.wait_for(lock, kPatience, [this] { return m_ended; });
    }

    bool stopped() {
        const std::lock_guard lock(m_mutex);
        return m_stopped;
    }

    void work() {
        ignoreBrokenPipes();
        while (const Task task = next()) {
            task();
        }
        const std::lock_guard lock(m_mutex);
        m_ended = true;
        m_changed.notify_all();
    }

private:
    /// An empty one when there will be no more.
    Task next() {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_stopped || !m_waiting.empty(); });
        if (m_stopped) {
            return {};
        }
        Task task = std::move(m_waiting.front());
        m_waiting.pop_front();
        return task;
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Task> m_waiting;
    bool m_stopped = false;
    bool m_ended = false;
};

namespace {

/// A task that gives a future its result or its failure.
/// @param work takes the promise
template <typename Result, typename Work>
std::pair<Task, QFuture<Result>> promised(Work work) {
    const auto promise = std::make_shared<QPromise<Result>>();
    promise->start();
    const auto task = [promise, work] {
        try {
            if (!promise->isCanceled()) {
                work(*promise);
            }
        } catch (...) {
            promise->setException(std::current_exception());
        }
        promise->finish();
    };
    return {task, promise->future()};
}

} // namespace

Scanner::Scanner() : m_tasks(std::make_shared<Tasks>()) {
    std::thread([tasks = m_tasks] { tasks->work(); }).detach();
}

Scanner::~Scanner() {
    m_tasks->stop();
}

QFuture<QList<DeviceInfo>> Scanner::devices() {
    const auto [task, future] = promised<QList<DeviceInfo>>(
        [](QPromise<QList<DeviceInfo>> &promise) { promise.addResult(Library().devices()); });
    m_tasks->add(task);
    return future;
}

QFuture<ScanOptions> Scanner::options(const QString &device) {
    const auto [task, future] = promised<ScanOptions>(
        [device](QPromise<ScanOptions> &promise) { promise.addResult(Device(device).options()); });
    m_tasks->add(task);
    return future;
}

QFuture<QImage> Scanner::scan(const QString &device, const ScanSettings &settings) {
    const auto work = [device, settings, tasks = m_tasks.get()](QPromise<QImage> &promise) {
        Device opened(device);
        opened.apply(settings);
        const QImage picture = opened.scan([&](std::optional<double> part) {
            // Reported again, it would wake the dialog for every piece that is read.
            if (const int most = part ? 100 : 0; promise.future().progressMaximum() != most) {
                promise.setProgressRange(0, most);
            }
            promise.setProgressValue(part ? static_cast<int>(*part * 100) : 0);
            return !promise.isCanceled() && !tasks->stopped();
        });
        if (!picture.isNull()) {
            promise.addResult(picture);
        }
    };
    const auto [task, future] = promised<QImage>(work);
    m_tasks->add(task);
    return future;
}

} // namespace platform::scanner
