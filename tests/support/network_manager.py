# SPDX-License-Identifier: MIT
"""A message bus of its own with a NetworkManager on it whose dial-up profiles behave as they are called: a template of
python3-dbusmock on top of its own one, which knows neither links that take time nor a primary connection.

Run with its parameters (JSON) as the only argument it writes the bus's address on a line once
it is ready. Parameters: "primary", the type of the connection that is up at first (none when missing); "networking"
and "connectivity" as NetworkManager has them.
"""
import os
import runpy
import signal
import subprocess
import sys

import dbus
import dbusmock
from gi.repository import GLib
from dbusmock.templates import networkmanager as plain
from dbusmock.templates.networkmanager import *  # noqa: F401,F403  the mock's own methods

BUS_NAME, MAIN_OBJ, SYSTEM_BUS, IS_OBJECT_MANAGER = plain.BUS_NAME, plain.MAIN_OBJ, True, True
NM, LINK = plain.MANAGER_IFACE, plain.ACTIVE_CONNECTION_IFACE
PROFILES = (('Home', '802-11-wireless'), ('My ISP', 'ppp'), ('Κινητό', 'gsm'), ('Forbidden', 'gsm'),
            ('Endless', 'ppp'), ('Crash', 'ppp'), ('No bus', 'bluetooth'), ('Wrong PIN', 'gsm'))
MOMENT = 20  # milliseconds that a change takes


def load(mock, parameters):
    plain.load(mock, {})
    manager = dbusmock.get_object(plain.MANAGER_OBJ)
    manager.AddProperties(NM, {'PrimaryConnection': dbus.ObjectPath('/'), 'PrimaryConnectionType': ''})
    manager.AddMethod(NM, 'ActivateConnection', 'ooo', 'o', 'ret = self.dial(self, args[0])')
    manager.AddMethod(NM, 'DeactivateConnection', 'o', '', 'self.drop(self, args[0])')
    manager.dial, manager.drop, manager.numbers = dial, drop, 0
    settings = dbusmock.get_object(plain.SETTINGS_OBJ)
    for name, kind in PROFILES:
        settings.SettingsAddConnection({'connection': {'id': name, 'type': kind}})
    show(manager, '/', parameters.get('primary', ''))
    manager.Set(NM, 'NetworkingEnabled', parameters.get('networking', True))
    manager.Set(NM, 'Connectivity', dbus.UInt32(parameters.get('connectivity', 4)))
    print(os.environ['DBUS_SYSTEM_BUS_ADDRESS'], flush=True)


def show(manager, path, kind):
    manager.Set(NM, 'PrimaryConnection', dbus.ObjectPath(path))
    manager.Set(NM, 'PrimaryConnectionType', kind)
    manager.Set(NM, 'State', dbus.UInt32(70 if kind else 20))


def later(action, *arguments):
    GLib.timeout_add(MOMENT, lambda: action(*arguments) and False)


def dial(manager, profile):
    about = dbusmock.get_object(profile).settings['connection']
    if about['id'] == 'Forbidden':
        raise dbus.exceptions.DBusException('Not authorized to control networking.', name=NM + '.PermissionDenied')
    path = plain.AddActiveConnection(manager, [], profile, '/', str(manager.numbers), 1)
    manager.numbers += 1
    endings = {'Endless': (int,), 'Crash': (os._exit, 1), 'Wrong PIN': (down, manager, path, 10),
               'No bus': (os.kill, int(os.environ['BUS_PROCESS']), signal.SIGKILL)}
    later(*endings.get(about['id'], (up, manager, path, about['type'])))
    return dbus.ObjectPath(path)


def up(manager, path, kind):
    show(manager, path, kind)
    dbusmock.get_object(path).Set(LINK, 'State', dbus.UInt32(2))


def drop(manager, path):
    dbusmock.get_object(path).Set(LINK, 'State', dbus.UInt32(3))
    later(down, manager, path, 2)


def down(manager, path, reason):
    dbusmock.get_object(path).EmitSignal(LINK, 'StateChanged', 'uu', [dbus.UInt32(4), dbus.UInt32(reason)])
    manager.RemoveObject(path)
    links = [link for link in manager.Get(NM, 'ActiveConnections') if link != path]
    manager.Set(NM, 'ActiveConnections', dbus.Array(links, signature='o'))
    show(manager, '/', '')


if __name__ == '__main__':
    bus = subprocess.Popen(['setpriv', '--pdeathsig', 'KILL', 'dbus-daemon', '--session', '--nofork',
                            '--print-address=1'], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    os.environ['BUS_PROCESS'] = str(bus.pid)
    os.environ['DBUS_SYSTEM_BUS_ADDRESS'] = bus.stdout.readline().strip()
    sys.argv[1:] = ['--logfile', '/dev/null', '--template', __file__, '--parameters', sys.argv[1]]
    runpy.run_module('dbusmock', run_name='__main__')
