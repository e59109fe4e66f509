// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/ReaderProcess.h"

#include "model/Log.h"
#include "process/Frames.h"
#include "process/ReaderProgram.h"
#include "process/Reaper.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvin {

namespace {

constexpr rlim_t kMiB = 1 << 20;

/// The sanitizers reserve more than any limit would leave them.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kLimitsMemory = false;
#else
constexpr bool kLimitsMemory = true;
#endif

/// Of the environment only what decides over texts, dates and the kinds of files.
class ReaderEnvironment {
public:
    ReaderEnvironment()
    {
        for (char **entry = environ; *entry; ++entry) {
            const std::string_view variable(*entry);
            const auto names = [&](std::string_view name) {
                return variable.starts_with(name) && variable.substr(name.size()).starts_with('=');
            };
            if (variable.starts_with("LC_") || std::ranges::any_of(kPassed, names))
                _entries.push_back(*entry);
        }
        _entries.push_back(nullptr);
    }
    char *const *get() { return _entries.data(); }

private:
    static constexpr auto kPassed = std::to_array<std::string_view>(
        {"LANG", "LANGUAGE", "PATH", "TZ", "TZDIR", "HOME", "XDG_DATA_HOME", "XDG_DATA_DIRS", "ASAN_OPTIONS",
         "LSAN_OPTIONS", "TSAN_OPTIONS", "UBSAN_OPTIONS"});

    std::vector<char *> _entries;
};

/// The three standard streams lead nowhere: what the libraries print is nobody's, and a file behind the
/// stream would be one more that a reader may not grow.
class FileActions {
public:
    FileActions(int socket, int counter)
    {
        posix_spawn_file_actions_init(&_actions);
        posix_spawn_file_actions_addopen(&_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&_actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&_actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&_actions, socket, kReaderSocket);
        posix_spawn_file_actions_adddup2(&_actions, counter, kReaderCounter);
    }
    ~FileActions() { posix_spawn_file_actions_destroy(&_actions); }
    FileActions(const FileActions &) = delete;
    FileActions &operator=(const FileActions &) = delete;

    const posix_spawn_file_actions_t *get() const { return &_actions; }

private:
    posix_spawn_file_actions_t _actions{};
};

/// That of its processor time.
std::optional<clockid_t> clockOf(pid_t pid)
{
    clockid_t clock{};
    return ::clock_getcpuclockid(pid, &clock) == 0 ? std::optional(clock) : std::nullopt;
}

} // namespace

Expected<std::unique_ptr<ReaderProcess>> ReaderProcess::start(const std::string &program)
{
    const auto path = program.empty() ? readerProgram() : Expected<std::string>(program);
    if (!path)
        return tl::unexpected(path.error());
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return posixFailure(errno);
    auto counter = std::make_unique<JobCounter>();
    // Numbers that the child does not give its own, so that giving those clears the close-on-exec mark.
    const int childEnd = ::fcntl(ends[1], F_DUPFD_CLOEXEC, kReaderCounter + 1);
    const int childCounter = ::fcntl(counter->descriptor(), F_DUPFD_CLOEXEC, kReaderCounter + 1);
    ::close(ends[1]);

    const std::string parent = std::to_string(::getpid());
    const std::string log = std::to_string((lcQuorvin().isInfoEnabled() ? quint32{LogPhrases} : 0)
                                           | (lcLibraries().isDebugEnabled() ? quint32{LogLibraries} : 0));
    std::array<char *, 4> arguments{const_cast<char *>(path->c_str()), const_cast<char *>(parent.c_str()),
                                    const_cast<char *>(log.c_str()), nullptr};
    const FileActions actions(childEnd, childCounter);
    ReaderEnvironment environment;
    pid_t pid = 0;
    const int problem
        = ::posix_spawn(&pid, path->c_str(), actions.get(), nullptr, arguments.data(), environment.get());
    ::close(childEnd);
    ::close(childCounter);
    if (problem != 0) {
        qCInfo(lcQuorvin) << "Failed to start the reader, error" << problem;
        ::close(ends[0]);
        return posixFailure(problem);
    }
    return std::unique_ptr<ReaderProcess>(new ReaderProcess(pid, ends[0], std::move(counter)));
}

ReaderProcess::ReaderProcess(pid_t pid, int socket, std::unique_ptr<JobCounter> counter)
    : _pid(pid),
      _clock(clockOf(pid)),
      _handle(static_cast<int>(::syscall(SYS_pidfd_open, pid, 0))),
      _socket(socket),
      _counter(std::move(counter))
{
}

ReaderProcess::~ReaderProcess()
{
    kill();
    ::close(_handle);
    ::close(_socket);
}

qint64 ReaderProcess::cpuTime() const
{
    qint64 sum = 0;
    for (const auto &clock : {_clock, _clockOfCompanion}) {
        timespec time{};
        if (clock && ::clock_gettime(*clock, &time) == 0)
            sum += time.tv_sec * 1000 + time.tv_nsec / 1'000'000;
    }
    return sum;
}

void ReaderProcess::setCompanion(pid_t pid)
{
    _clockOfCompanion = clockOf(pid);
}

void ReaderProcess::limitMemory(int mebibytes)
{
    if (!kLimitsMemory || mebibytes == _memoryMiB)
        return;
    rlimit limit{};
    if (::prlimit(_pid, RLIMIT_DATA, nullptr, &limit) != 0)
        return;
    limit.rlim_cur = std::min(static_cast<rlim_t>(mebibytes) * kMiB, limit.rlim_max);
    if (::prlimit(_pid, RLIMIT_DATA, &limit, nullptr) == 0)
        _memoryMiB = mebibytes;
}

std::optional<int> ReaderProcess::kill()
{
    return _pid > 0 ? endChild(std::exchange(_pid, 0), _handle) : std::nullopt;
}

} // namespace quorvin
