#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The same days on two systems: what the program for Windows fetches, keeps and reads is what the one of this system
does, byte for byte, and either goes on where the other has left off.

    scenarioTest.py DEMO_SERVICE CONSOLE WINDOWS_CONSOLE...

The last is a command: the program for Windows behind what runs it here."""

import os
import pathlib
import random
import socket
import subprocess
import sys
import tempfile
import time
import unittest

DEMO, NATIVE, WINDOWS = sys.argv[1], [sys.argv[2]], sys.argv[3:]
PROGRAMS = {'native': NATIVE, 'windows': WINDOWS}
PATIENCE = 240  # seconds; a shared machine may be slow


def free_short_port():
    """One with four digits: the client keeps no more."""
    for port in random.sample(range(2000, 9999), 200):
        with socket.socket() as probe:
            probe.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
            try:
                probe.bind(('127.0.0.1', port))
                return port
            except OSError:
                continue
    raise unittest.SkipTest('no free port')


class ScenarioTest(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory(prefix='vell-scenario-')
        self.addCleanup(place.cleanup)
        self.place = pathlib.Path(place.name)
        ready = self.place / 'ready'
        service = subprocess.Popen([DEMO, '--root', str(self.place / 'service'), '--ready-file', str(ready), '--for',
                                    '1200', '--latency', '20', '--http', '127.0.0.1:0', '--ftp',
                                    f'127.0.0.1:{free_short_port()}'],
                                   stdout=subprocess.DEVNULL)
        self.addCleanup(service.wait)
        self.addCleanup(service.terminate)
        while not ready.exists():
            self.assertIsNone(service.poll(), 'the service has ended')
            time.sleep(0.02)
        addresses = dict(line.split() for line in ready.read_text().splitlines())
        self.ftp_port = addresses['ftp'].rsplit(':', 1)[1]
        self.environment = {name: value for name, value in os.environ.items() if 'proxy' not in name.lower()}
        self.environment['http_proxy'] = 'http://' + addresses['http']

    def run_in(self, program, folder, *arguments, answer=''):
        return subprocess.run([*PROGRAMS[program], '--folder', str(self.place / folder), *arguments], input=answer,
                              env=self.environment, capture_output=True, encoding='utf-8', timeout=PATIENCE)

    def good(self, program, folder, *arguments, answer=''):
        ended = self.run_in(program, folder, *arguments, answer=answer)
        self.assertEqual(ended.returncode, 0, f'{program} {arguments}: {ended.stdout}{ended.stderr}')
        return ended.stdout

    def prepare(self, folder, protocol='HTTP'):
        (self.place / folder / 'clips').mkdir(parents=True)
        (self.place / folder / 'vell.ini').write_bytes(
            f'; kept as it is\r\n[Host]\r\nProtocol={protocol}\r\nHost=127.0.0.1\r\nPort={self.ftp_port}\r\n'
            f'TimeOut=60\r\nUid=demo\r\nRetryOnFailure=1\r\nRetryDelay=0\r\n[General]\r\nDebug=1\r\n[Download]\r\n'
            f'LocalDir={self.place / folder / "clips"}\r\n'.encode('cp1253'))
        self.good('native', folder, 'setup', 'Pwd', '-', answer='demo\n')

    def clips(self, folder):
        """Every file below the download folder, hidden ones included."""
        root = self.place / folder / 'clips'
        return {str(file.relative_to(root)): file.read_bytes() for file in sorted(root.rglob('*')) if file.is_file()}

    def fetched(self, program, folder, protocol):
        self.prepare(folder, protocol)
        self.good(program, folder, 'download')
        found = self.clips(folder)
        self.assertGreater(len(found), 12)
        return found

    def test_a_day_is_the_same_over_both_protocols(self):
        for protocol in ('HTTP', 'FTP'):
            with self.subTest(protocol):
                here = self.fetched('native', f'native-{protocol}', protocol)
                there = self.fetched('windows', f'windows-{protocol}', protocol)
                self.assertEqual(sorted(here), sorted(there))
                for name in here:
                    self.assertEqual(here[name], there[name], name)
                rows = [self.good(program, f'native-{protocol}', 'list', '--tsv').replace(
                    str(self.place / f'native-{protocol}'), '') for program in PROGRAMS]
                self.assertEqual(rows[0], rows[1])

    def test_settings_written_by_one_are_read_by_the_other(self):
        self.prepare('shared')
        for writer, reader in (('native', 'windows'), ('windows', 'native')):
            for key, value in (('TimeOut', '77' if writer == 'native' else '78'), ('Uid', f'Άννα {writer}')):
                self.good(writer, 'shared', 'setup', key, value)
                self.assertEqual(self.good(reader, 'shared', 'setup', key), value + '\n')
        self.good('windows', 'shared', 'setup', 'Uid', 'demo')
        self.good('windows', 'shared', 'setup', 'Pwd', '-', answer='demo\n')
        self.good('windows', 'shared', 'schedule', 'add', 'Mon', 'Wed', '07:30')
        self.assertIn('07:30', self.good('native', 'shared', 'schedule'))
        self.assertIn(b'; kept as it is', (self.place / 'shared' / 'vell.ini').read_bytes())
        self.good('native', 'shared', 'download')  # with the password that the other has written

    def test_a_day_begun_by_one_is_finished_by_the_other(self):
        whole = self.fetched('native', 'whole', 'HTTP')
        for first, second in (('native', 'windows'), ('windows', 'native')):
            with self.subTest(first=first):
                folder = f'begun-by-{first}'
                self.fetched(first, folder, 'HTTP')
                day = next((self.place / folder / 'clips').iterdir())
                index = day / 'ALLFILES.DIR'
                lines = index.read_bytes().split(b'\r\n')
                name = lines[0].split(b'||')[0].decode()
                for ending in ('PDF', 'TXT', 'MT'):
                    (day / name.replace('.PDF', '.' + ending)).unlink()
                lines[0] = lines[0].replace(b'||d||', b'||-||')
                index.write_bytes(b'\r\n'.join(lines))
                self.good(second, folder, 'download')
                self.assertEqual(self.clips(folder), whole)

    def test_a_killed_run_is_made_good(self):
        whole = self.fetched('native', 'unharmed', 'HTTP')
        self.prepare('killed')
        for files in (1, 4, 9, 16):
            program = subprocess.Popen([*WINDOWS, '--folder', str(self.place / 'killed'), 'download'],
                                       env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            while program.poll() is None and len(self.clips('killed')) < files:
                time.sleep(0.002)
            program.kill()
            program.wait()
        self.good('windows', 'killed', 'download')
        self.assertEqual({name: bytes_ for name, bytes_ in self.clips('killed').items() if '.part' not in name}, whole)

    def test_a_second_program_is_told_that_one_runs(self):
        self.prepare('twice')
        self.good('native', 'twice', 'schedule', 'add', 'Mon', '07:30')
        watching = subprocess.Popen([*WINDOWS, '--folder', str(self.place / 'twice'), 'watch'], env=self.environment,
                                    stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            until = time.monotonic() + PATIENCE
            while self.run_in('windows', 'twice', 'download').returncode != 5:
                self.assertLess(time.monotonic(), until)
        finally:
            watching.kill()
            watching.wait()

    def test_bad_surroundings_are_told(self):
        self.prepare('bad')
        ini = self.place / 'bad' / 'vell.ini'
        text = ini.read_bytes()
        ini.write_bytes(text.replace(b'127.0.0.1', b'nobody.invalid'))
        self.environment['http_proxy'] = 'http://127.0.0.1:9'
        ended = self.run_in('windows', 'bad', 'download')
        self.assertEqual(ended.returncode, 1, ended.stdout + ended.stderr)
        ini.write_bytes(text.replace(b'/clips', b'/gone/clips'))
        ended = self.run_in('windows', 'bad', 'download')
        self.assertEqual(ended.returncode, 1, ended.stdout + ended.stderr)
        self.assertIn('Download folder not created', ended.stdout + ended.stderr)


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1], verbosity=2)
