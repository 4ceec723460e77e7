#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What stands in the executables for Windows: version, icon, manifest, how they may be loaded, and what they need.

    executableTest.py OBJDUMP VERSION EXECUTABLE..."""

import pathlib
import re
import subprocess
import sys
import unittest

OBJDUMP, VERSION, EXECUTABLES = sys.argv[1], sys.argv[2], sys.argv[3:]
# DYNAMIC_BASE and NX_COMPAT, and for 64 bits HIGH_ENTROPY_VA.
HARDENED = 0x0040 | 0x0100
HIGH_ENTROPY = 0x0020
MOST_BYTES = 12 << 20


class ExecutableTest(unittest.TestCase):
    def each(self):
        for path in EXECUTABLES:
            headers = subprocess.run([OBJDUMP, '-p', path], capture_output=True, text=True, check=True).stdout
            yield path, pathlib.Path(path).read_bytes(), headers

    def test_says_what_it_is(self):
        for path, content, _ in self.each():
            for key, value in (('ProductVersion', VERSION), ('ProductName', 'Vell')):
                found = re.search(re.escape(f'{key}\0'.encode('utf-16-le')) + b'(?:\0\0)*' +
                                  re.escape(f'{value}\0'.encode('utf-16-le')), content)
                self.assertIsNotNone(found, key)
            for part in (b'Microsoft.Windows.Common-Controls', b'asInvoker', b'PerMonitorV2',
                         b'8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a'):
                self.assertIn(part, content)
            self.assertNotIn(b'activeCodePage', content)
            self.assertIn(b'\x89PNG\r\n', content, 'the large icon')

    def test_is_hardened(self):
        for path, _, headers in self.each():
            flags = int(re.search(r'^DllCharacteristics\s+([0-9a-f]+)', headers, re.MULTILINE).group(1), 16)
            wanted = HARDENED | (HIGH_ENTROPY if 'pei-x86-64' in headers else 0)
            self.assertEqual(flags & wanted, wanted)
            self.assertRegex(headers, r'Base Relocation Directory|\.reloc')

    def test_needs_nothing_but_the_system(self):
        for path, content, headers in self.each():
            libraries = re.findall(r'DLL Name: (\S+)', headers)
            self.assertTrue(libraries)
            for library in libraries:
                self.assertNotRegex(library.lower(), r'^(lib|wx)', library)
            self.assertNotIn('rasapi32.dll', [library.lower() for library in libraries], 'is loaded when it is used')
            self.assertLess(len(content), MOST_BYTES)


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1], verbosity=2)
