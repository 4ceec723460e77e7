// SPDX-License-Identifier: MIT
// A line between two network namespaces that holds every packet back:
//   vell_bench_delay NEAR FAR MICROSECONDS
// NEAR and FAR are files like /proc/PID/ns/net. In each a tun device "line" comes up; what goes in at one end comes out
// at the other so much later, in the same order, however much it is. Says "ready" when both ends are there.
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <deque>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <linux/if.h>
#include <linux/if_tun.h>
#include <poll.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

struct Packet {
    Clock::time_point Due;
    std::vector<char> Bytes;
};

// What is on its way to one end.
struct Direction {
    int From;
    int To;
    std::deque<Packet> OnTheWay{};
};

void check(bool good, const std::string& what) {
    if (!good) throw std::system_error(errno, std::generic_category(), what);
}

// The device lies in that namespace, its file descriptor here.
int deviceIn(const char* space) {
    const int home = open(space, O_RDONLY | O_CLOEXEC);
    check(home >= 0 && setns(home, CLONE_NEWNET) == 0, space);
    close(home);
    const int device = open("/dev/net/tun", O_RDWR | O_NONBLOCK | O_CLOEXEC);
    check(device >= 0, "/dev/net/tun");
    ifreq request{};
    std::strncpy(request.ifr_name, "line", IFNAMSIZ - 1);
    request.ifr_flags = IFF_TUN | IFF_NO_PI;
    check(ioctl(device, TUNSETIFF, &request) == 0, "TUNSETIFF");
    return device;
}

// Not all that may come: the other direction must not wait for a flood to end.
void take(Direction& direction, std::chrono::microseconds delay) {
    std::array<char, 65536> buffer;
    for (int packets = 0; packets < 64; ++packets) {
        const ssize_t got = read(direction.From, buffer.data(), buffer.size());
        if (got <= 0) return;
        direction.OnTheWay.push_back({Clock::now() + delay, {buffer.data(), buffer.data() + got}});
    }
}

void deliver(Direction& direction) {
    auto& packets = direction.OnTheWay;
    for (; !packets.empty() && packets.front().Due <= Clock::now(); packets.pop_front()) {
        const auto& bytes = packets.front().Bytes;
        check(write(direction.To, bytes.data(), bytes.size()) >= 0 || errno == EIO, "write");  // EIO: the end is down
    }
}

timespec untilNext(const std::array<Direction, 2>& directions) {
    std::chrono::nanoseconds wait = std::chrono::seconds(1);
    for (const Direction& direction : directions)
        if (!direction.OnTheWay.empty()) wait = std::min(wait, direction.OnTheWay.front().Due - Clock::now());
    wait = std::max(wait, std::chrono::nanoseconds(0));
    return {wait.count() / 1'000'000'000, wait.count() % 1'000'000'000};
}

void carry(int near, int far, std::chrono::microseconds delay) {
    std::array<Direction, 2> directions{Direction{near, far}, Direction{far, near}};
    for (;;) {
        std::array<pollfd, 2> ends{pollfd{near, POLLIN, 0}, pollfd{far, POLLIN, 0}};
        const timespec wait = untilNext(directions);
        check(ppoll(ends.data(), ends.size(), &wait, nullptr) >= 0 || errno == EINTR, "ppoll");
        for (Direction& direction : directions) {
            take(direction, delay);
            deliver(direction);
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    try {
        if (argc != 4) throw std::invalid_argument("NEAR FAR MICROSECONDS are wanted");
        const int near = deviceIn(argv[1]);
        const int far = deviceIn(argv[2]);
        std::cout << "ready" << std::endl;
        carry(near, far, std::chrono::microseconds(std::stoi(argv[3])));
    } catch (const std::exception& error) {
        std::cerr << "delayLine: " << error.what() << '\n';
        return 1;
    }
}
