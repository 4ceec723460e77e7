# SPDX-License-Identifier: MIT
"""What is measured, against whom, and what we aim at: the most that our median may be, as a ratio to the other's."""
import dataclasses

import days


@dataclasses.dataclass
class Aim:
    other: str
    measure: str  # a field of Cost
    ratio: float | None = None  # for information only


@dataclasses.dataclass
class Case:
    topic: str
    over: str
    what: str
    day: days.Day
    aims: list
    protocol: str = "HTTP"
    one_way: int = 0  # delay in microseconds
    ours: str = "Vell"

    @property
    def clients(self):
        return list(dict.fromkeys([self.ours] + [aim.other for aim in self.aims]))


def walls(*others):
    return [Aim(other, "wall") for other in others]


HTTP_OTHERS = walls("wget -i", "aria2c -j1", "lftp")
ROUND_TRIP = 5000

ALL = [
    Case("http", "HTTP", "300 files, 22.6 MB", days.SMALL,
         [Aim("curl --http1.0", "wall", 0.85), Aim("curl", "wall", 1.20), *HTTP_OTHERS]),
    Case("http", "HTTP", "3,000 files, 226 MB", days.LARGE,
         [Aim("curl --http1.0", "wall", 0.85), Aim("curl", "wall", 1.20), *HTTP_OTHERS,
          Aim("curl --http1.0", "processor", 1.0), Aim("curl", "memory", 1.3)]),
    Case("http", "HTTP", "one file of 200 MB", days.ONE_FILE,
         [Aim("curl", "wall", 1.0), *HTTP_OTHERS, Aim("curl", "memory", 2.0)]),

    Case("ftp", "FTP", "300 files, 22.6 MB", days.SMALL,
         [Aim("curl, active", "wall", 0.95), Aim("lftp", "wall", 0.90), Aim("curl, active", "processor", 1.05)], "FTP"),
    Case("ftp", "FTP", "3,000 files, 226 MB", days.LARGE,
         [Aim("curl, active", "wall", 1.0), Aim("lftp", "wall", 0.90), Aim("curl, active", "processor", 1.05),
          Aim("curl, active", "memory", 1.3)], "FTP"),
    Case("ftp", "FTP", "one file of 200 MB", days.ONE_FILE,
         [Aim("curl, active", "wall", 0.95), Aim("lftp", "wall", 0.90), Aim("curl, active", "processor", 1.05)], "FTP"),

    Case("rtt", "HTTP, 10 ms", "300 files, 22.6 MB", days.SMALL,
         [Aim("curl", "wall", 1.05), *HTTP_OTHERS], one_way=ROUND_TRIP),
    Case("rtt", "FTP, 10 ms", "300 files, 22.6 MB", days.SMALL,
         [Aim("curl, active", "wall", 1.02), *walls("lftp")], "FTP", ROUND_TRIP),

    Case("window", "HTTP", "3,000 files, 226 MB", days.LARGE, [Aim("Vell", "wall", 1.25), *walls("curl")],
         ours="Vell's window"),
]
