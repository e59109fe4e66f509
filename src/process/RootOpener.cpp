// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/RootOpener.h"

#include "platform/NativePath.h"

#include <QDeadlineTimer>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

namespace quorvin {

namespace {

constexpr int kPatience = 1000; ///< milliseconds
constexpr std::size_t kMostReached = 16;

/// What the helper says, each in a packet of its own.
enum class Word : char {
    Root, ///< comes with its descriptor
    Reached, ///< the same, and its path
    End, ///< of one of the threads
};

/// Room for one descriptor beside a packet.
union Attachment {
    cmsghdr header;
    std::array<char, CMSG_SPACE(sizeof(int))> room;
};

bool sendPacket(int socket, Word word, int descriptor, const QByteArray &path)
{
    QByteArray bytes = char(word) + path;
    iovec content{bytes.data(), static_cast<std::size_t>(bytes.size())};
    Attachment attachment{};
    msghdr packet{};
    packet.msg_iov = &content;
    packet.msg_iovlen = 1;
    if (descriptor >= 0) {
        packet.msg_control = &attachment;
        packet.msg_controllen = sizeof attachment.room;
        attachment.header.cmsg_len = CMSG_LEN(sizeof descriptor);
        attachment.header.cmsg_level = SOL_SOCKET;
        attachment.header.cmsg_type = SCM_RIGHTS;
        std::memcpy(CMSG_DATA(&attachment.header), &descriptor, sizeof descriptor);
    }
    return ::sendmsg(socket, &packet, MSG_NOSIGNAL) == bytes.size();
}

QByteArray realPath(const QByteArray &path)
{
    std::array<char, PATH_MAX> real{};
    return ::realpath(path.constData(), real.data()) ? QByteArray(real.data()) : QByteArray();
}

void tell(int socket, Word word, const QByteArray &path)
{
    const int descriptor = ::open(path.constData(), O_PATH | O_CLOEXEC);
    if (descriptor < 0)
        return;
    sendPacket(socket, word, descriptor, word == Word::Reached ? path : QByteArray());
    ::close(descriptor);
}

/// Where the part of a path begins that lies below its root; absent when it has none.
std::optional<qsizetype> endOfRoot(const ReaderRoots &roots, const QString &path)
{
    std::optional<qsizetype> end;
    for (const QString &root : roots.paths) {
        const bool isAbove
            = root == u'/' || (path.startsWith(root) && path.sliced(root.size()).startsWith(u'/'));
        if (isAbove)
            end = std::max(end.value_or(0), root.size());
    }
    return end;
}

/// Those links count that lie below the root: what leads to the root itself, is the root.
std::vector<QByteArray> pathsReached(const ReaderRoots &roots)
{
    std::vector<QByteArray> paths;
    const auto root = endOfRoot(roots, roots.through);
    for (qsizetype end = root.value_or(roots.through.size());
         root && end >= 0 && paths.size() < kMostReached;) {
        end = roots.through.indexOf(u'/', end + 1);
        const QByteArray part = encodePath(roots.through.left(end));
        struct stat facts { };
        if (::lstat(part.constData(), &facts) == 0 && S_ISLNK(facts.st_mode))
            paths.push_back(realPath(part));
    }
    if (paths.empty())
        paths.push_back(realPath(encodePath(roots.through)));
    return paths;
}

/// A thread for each path.
void openAll(int socket, const ReaderRoots &roots)
{
    std::vector<std::jthread> threads;
    for (const QString &root : roots.paths)
        threads.emplace_back([socket, path = encodePath(root)] {
            tell(socket, Word::Root, path);
            sendPacket(socket, Word::End, -1, {});
        });
    threads.emplace_back([socket, &roots] {
        for (const QByteArray &path :
             roots.through.isEmpty() ? std::vector<QByteArray>() : pathsReached(roots))
            tell(socket, Word::Reached, path);
        sendPacket(socket, Word::End, -1, {});
    });
}

/// The helper's life.
[[noreturn]] void help(int socket, pid_t reader, const ReaderRoots &roots)
try {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    // Where it has to stay behind, nobody is to take it for the reader.
    ::close(kReaderSocket);
    ::close(kReaderCounter);
    if (::getppid() == reader)
        openAll(socket, roots);
    std::_Exit(EXIT_SUCCESS);
} catch (const std::system_error &) {
    std::_Exit(EXIT_FAILURE);
}

/// The next packet: its bytes, "" for none, and the descriptor that came with it.
QByteArray receivePacket(int socket, std::vector<int> &descriptors)
{
    QByteArray bytes(PATH_MAX + 1, Qt::Uninitialized);
    iovec content{bytes.data(), static_cast<std::size_t>(bytes.size())};
    Attachment attachment{};
    msghdr packet{};
    packet.msg_iov = &content;
    packet.msg_iovlen = 1;
    packet.msg_control = &attachment;
    packet.msg_controllen = sizeof attachment.room;
    bytes.truncate(std::max<ssize_t>(::recvmsg(socket, &packet, MSG_CMSG_CLOEXEC | MSG_DONTWAIT), 0));
    if (const cmsghdr *header = CMSG_FIRSTHDR(&packet)) {
        int descriptor = -1;
        std::memcpy(&descriptor, CMSG_DATA(header), sizeof descriptor);
        descriptors.push_back(descriptor);
    }
    return bytes;
}

} // namespace

RootOpener::RootOpener(const ReaderRoots &roots) : _threads(roots.paths.size() + 1)
{
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return;
    const pid_t reader = ::getpid();
    _helper = ::fork();
    if (_helper == 0)
        help(ends[1], reader, roots);
    ::close(ends[1]);
    _socket = ends[0];
}

RootOpener::~RootOpener()
{
    endHelper();
}

void RootOpener::endHelper()
{
    ::close(std::exchange(_socket, -1));
    const pid_t helper = std::exchange(_helper, -1);
    if (helper <= 0)
        return;
    // One that waits for its file system stays behind.
    ::kill(helper, SIGKILL);
    ::waitpid(helper, nullptr, _threads == 0 ? 0 : WNOHANG);
}

RootOpener::Opened RootOpener::take()
{
    Opened opened;
    const QDeadlineTimer deadline(kPatience);
    while (_threads > 0) {
        pollfd end{_socket, POLLIN, 0};
        if (::poll(&end, 1, static_cast<int>(deadline.remainingTime())) <= 0)
            break;
        const QByteArray packet = receivePacket(_socket, opened.descriptors);
        if (packet.isEmpty())
            break;
        _threads -= packet[0] == char(Word::End) ? 1 : 0;
        if (packet[0] == char(Word::Reached))
            opened.reached.push_back(decodePath(packet.sliced(1)));
    }
    endHelper();
    return opened;
}

} // namespace quorvin
