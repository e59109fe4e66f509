// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/ExifToolStart.h"

#include "model/FailureKind.h"
#include "process/Guard.h"
#include "process/ReaderProgram.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <sstream>
#include <vector>

namespace quorvin {

namespace {

/// The sanitizers reserve more than any limit would leave them, and this process has to come as far as exec.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kLimitsOwnMemory = false;
#else
constexpr bool kLimitsOwnMemory = true;
#endif

constexpr const char *kInterpreter = "/usr/bin/perl";
constexpr int kPlaceOfParent = 2; ///< among the arguments of a process that is to become exiftool
constexpr int kPlaceOfMemory = 3;
constexpr int kPlaceOfProgram = 4;
constexpr int kArguments = 5;

bool isProgram(const std::string &path)
{
    struct stat facts { };
    return ::stat(path.c_str(), &facts) == 0 && S_ISREG(facts.st_mode) && ::access(path.c_str(), R_OK) == 0;
}

/// Both ends of a pipe; a process that is started gets copies of its own.
class Pipe {
public:
    explicit Pipe(int flags = 0)
    {
        if (::pipe2(_ends.data(), O_CLOEXEC | flags) != 0)
            _ends = {-1, -1};
    }
    ~Pipe()
    {
        ::close(_ends[0]);
        ::close(_ends[1]);
    }
    Pipe(const Pipe &) = delete;
    Pipe &operator=(const Pipe &) = delete;

    bool isOpen() const { return _ends[0] >= 0; }
    int readEnd() const { return _ends[0]; }
    int writeEnd() const { return _ends[1]; }
    int takeReadEnd() { return std::exchange(_ends[0], -1); }
    int takeWriteEnd() { return std::exchange(_ends[1], -1); }

private:
    std::array<int, 2> _ends{-1, -1};
};

/// Of the environment only what decides over dates: a variable may change what the interpreter runs.
std::vector<std::string> exifToolEnvironment()
{
    std::vector<std::string> entries{"LC_ALL=C", "PATH=/usr/bin:/bin"};
    for (const char *name : {"TZ", "TZDIR"}) {
        if (const char *value = std::getenv(name))
            entries.push_back(std::string(name) + '=' + value);
    }
    return entries;
}

std::vector<char *> pointersTo(std::vector<std::string> &texts)
{
    std::vector<char *> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// The error of `posix_spawn`; 0 for none.
int spawn(std::vector<std::string> words, const Pipe &input, const Pipe &output, const Pipe &errors,
          pid_t &pid)
{
    posix_spawn_file_actions_t actions{};
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input.readEnd(), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output.writeEnd(), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, errors.writeEnd(), STDERR_FILENO);
    std::vector<std::string> environment = exifToolEnvironment();
    const int problem = ::posix_spawn(&pid, words.front().c_str(), &actions, nullptr,
                                      pointersTo(words).data(), pointersTo(environment).data());
    posix_spawn_file_actions_destroy(&actions);
    return problem;
}

} // namespace

std::string exifToolProgram()
{
    const char *variable = std::getenv("PATH");
    std::istringstream folders(variable ? variable : "/usr/local/bin:/usr/bin:/bin");
    for (std::string folder; std::getline(folders, folder, ':');) {
        // A relative one would let the current folder choose the program.
        if (std::string path = folder + "/exiftool"; folder.starts_with('/') && isProgram(path))
            return path;
    }
    return {};
}

Expected<StartedExifTool> startExifTool(int memoryMiB)
{
    const std::string program = exifToolProgram();
    if (program.empty())
        return failure(FailureKind::NoExifTool);
    const auto reader = readerProgram();
    if (!reader)
        return tl::unexpected(reader.error());
    Pipe input(0);
    Pipe output;
    Pipe errors;
    if (!input.isOpen() || !output.isOpen() || !errors.isOpen())
        return posixFailure(errno);
    pid_t pid = -1;
    const int problem
        = spawn({*reader, kBecomeExifTool, std::to_string(::getpid()), std::to_string(memoryMiB), program},
                input, output, errors, pid);
    if (problem != 0)
        return posixFailure(problem);
    ::fcntl(input.writeEnd(), F_SETFL, O_NONBLOCK);
    return StartedExifTool{pid, input.takeWriteEnd(), input.takeReadEnd(), output.takeReadEnd(),
                           errors.takeReadEnd()};
}

void becomeExifTool(int argc, char **argv)
{
    if (argc != kArguments)
        return;
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (std::to_string(::getppid()) != argv[kPlaceOfParent])
        return;
    // What interrupts the parent at the terminal is the parent's affair.
    std::signal(SIGINT, SIG_IGN);
    ::close_range(STDERR_FILENO + 1, ~0U, 0);
    const rlim_t memory = std::strtoul(argv[kPlaceOfMemory], nullptr, 10) << 20U;
    const rlimit limit{memory, memory};
    if (kLimitsOwnMemory && ::setrlimit(RLIMIT_DATA, &limit) != 0)
        return;
    const std::string program = argv[kPlaceOfProgram];
    raiseGuard({.profile = GuardProfile::ExifTool, .program = program});
    // Without the first two a file in the user's folder, or in the current one, would be run.
    ::execl(kInterpreter, "perl", program.c_str(), "-config", "", "-stay_open", "True", "-@", "-", nullptr);
}

} // namespace quorvin
