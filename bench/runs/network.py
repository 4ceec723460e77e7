# SPDX-License-Identifier: MIT
"""Networks that last for one measurement: thousands of closed connections in the tables of the last one would count."""
import contextlib
import subprocess


def run(*command):
    subprocess.run(command, check=True)


def within(space, *command):
    return ["nsenter", f"--net=/run/netns/{space}", *command]


@contextlib.contextmanager
def space(name):
    run("ip", "netns", "add", name)
    try:
        run("ip", "-n", name, "link", "set", "lo", "up")
        yield name
    finally:
        run("ip", "netns", "del", name)


@contextlib.contextmanager
def loopback():
    """The place of the clients, the place of the servers, and the servers' address."""
    with space("near") as near:
        # With nothing but loopback the program takes itself for offline. Nothing goes over this cable.
        run("ip", "-n", near, "link", "add", "line", "type", "veth", "peer", "name", "end")
        run("ip", "-n", near, "link", "set", "end", "up")
        bring_up(near, "10.9.0.1")
        yield near, near, "127.0.0.1"


@contextlib.contextmanager
def far_away(one_way_microseconds):
    """The same; every packet between the two places is held back so long."""
    with space("near") as near, space("far") as far:
        line = subprocess.Popen(
            ["vell_bench_delay", f"/run/netns/{near}", f"/run/netns/{far}", str(one_way_microseconds)],
            stdout=subprocess.PIPE, text=True)
        try:
            if line.stdout.readline() != "ready\n":
                raise RuntimeError("the line did not come up")
            bring_up(near, "10.9.0.1")
            bring_up(far, "10.9.0.2")
            yield near, far, "10.9.0.2"
        finally:
            line.kill()
            line.wait()


def bring_up(place, address):
    run("ip", "-n", place, "addr", "add", f"{address}/24", "dev", "line")
    run("ip", "-n", place, "link", "set", "line", "up", "txqueuelen", "10000")
