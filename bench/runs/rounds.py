# SPDX-License-Identifier: MIT
"""Rounds in which every client of a case has its turn."""
import collections
import filecmp
import shutil
import statistics
import subprocess
import sys

import clients
import days
import network
import servers

# Seconds, seconds of the processor for the client alone, kilobytes.
Cost = collections.namedtuple("Cost", "wall processor memory")


def turn(case, name):
    """One run of a client, on an empty disk and in an unused network."""
    shutil.rmtree(clients.TARGET, ignore_errors=True)
    shutil.rmtree(clients.PROGRAM, ignore_errors=True)
    clients.TARGET.mkdir()
    case.day.be_today()
    line = network.far_away(case.one_way) if case.one_way else network.loopback()
    with line as (near, far, address), servers.http(far, address):
        if case.protocol == "HTTP":
            return cost_of(near, case, name, address)
        with servers.ftp(far, address):
            return cost_of(near, case, name, address)


def cost_of(near, case, name, address):
    command = clients.BY_NAME[name](case.day, case.protocol, address)
    done = subprocess.run(network.within(near, *command), capture_output=True, text=True)
    if done.returncode != 0:
        raise RuntimeError(f"{name} ended with {done.returncode}: {done.stderr[-500:]}")
    wall, processor, memory = done.stdout.split()
    return Cost(float(wall), float(processor), int(memory))


def compare_files(case, name):
    folder = clients.TARGET / case.day.digits if name.startswith("Vell") else clients.TARGET
    for file in case.day.files():
        if not filecmp.cmp(days.SITE / case.day.http_folder / file, folder / file, shallow=False):
            raise RuntimeError(f"{name} brought another {file}")


def medians(case, repeats):
    """The median cost by client. Who begins changes from round to round."""
    costs = collections.defaultdict(list)
    for name in case.clients:
        turn(case, name)
        compare_files(case, name)
    for number in range(repeats):
        first = number % len(case.clients)
        for name in case.clients[first:] + case.clients[:first]:
            costs[name].append(turn(case, name))
    for name, each in costs.items():
        walls = [cost.wall for cost in each]
        print(f"  {name:16} {statistics.median(walls):8.3f} s ({min(walls):.3f} to {max(walls):.3f})", file=sys.stderr)
    return {name: Cost(*map(statistics.median, zip(*each))) for name, each in costs.items()}
