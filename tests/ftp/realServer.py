# SPDX-License-Identifier: MIT
"""Serves a folder over FTP with a server that others wrote, on a free port of loopback, and prints the port: one of
four digits, which is as many as the program's settings keep. Both let in "vell" with "ruxo"; CONFIG is a file to
write. Prints 0 when the server is not there.
    realServer.py pyftpdlib|proftpd FOLDER CONFIG PORT|0"""
import crypt, grp, logging, os, pwd, random, socket, subprocess, sys  # noqa: E401


def badness():
    """How pyftpdlib is to treat N1*.PDF: it "breaks" off after 1000 bytes, "dies" there, or "forgets" where to start."""
    try:
        with open(folder + '/badness') as file:
            return file.read()
    except FileNotFoundError:
        return ''


class BadFile:
    def __init__(self, file, channel):
        self.file, self.channel = file, channel

    def __getattr__(self, name):
        return getattr(self.file, name)

    def read(self, _):
        if self.file.tell() >= 1000:
            if badness() == 'dies':
                self.channel.close()
            raise OSError(5, 'Input/output error')
        return self.file.read(1000)


def listen(wanted):
    while True:
        try:
            return socket.create_server(('127.0.0.1', wanted or random.randint(2000, 9999)))
        except OSError:
            if wanted:
                raise


server, folder, config, port = sys.argv[1:]
listener = listen(int(port))
if server == 'pyftpdlib':
    try:
        from pyftpdlib import authorizers, filesystems, handlers, servers
    except ImportError:
        sys.exit(print(0))

    class Disk(filesystems.AbstractedFS):
        def open(self, name, mode):
            file = super().open(name, mode)
            isBad = '/N1' in name and name.endswith('.PDF') and badness() in ('breaks', 'dies')
            return BadFile(file, self.cmd_channel) if isBad else file

    class Handler(handlers.FTPHandler):
        abstracted_fs = Disk

        def ftp_REST(self, line):
            super().ftp_REST('0' if badness() == 'forgets' else line)

    logging.disable(logging.CRITICAL)
    Handler.authorizer = authorizers.DummyAuthorizer()
    Handler.authorizer.add_user('vell', 'ruxo', folder, perm='elradfmwMT')
    Handler.auth_failed_timeout, Handler.use_sendfile = 0, False
    ftp = servers.FTPServer(listener, Handler)
    print(ftp.address[1], flush=True)
    ftp.serve_forever()
program = '/usr/sbin/' + server
if not os.access(program, os.X_OK):
    sys.exit(print(0))
me = os.stat(folder)
with open(os.open(config + '.users', os.O_WRONLY | os.O_CREAT, 0o600), 'w') as file:
    file.write(f'vell:{crypt.crypt("ruxo")}:{me.st_uid}:{me.st_gid}::{folder}:/bin/sh\n')
settings = ('ServerType inetd\nDefaultAddress 127.0.0.1\nRequireValidShell off\nRootLogin on\nUseIPv6 off\nWtmpLog off\nTransferLog none\n'
            f'SystemLog none\nScoreboardFile {config}.board\nAuthOrder mod_auth_file.c\nDelayEngine off\n'
            f'User {pwd.getpwuid(os.geteuid()).pw_name}\nGroup {grp.getgrgid(os.getegid()).gr_name}\n'
            f'AuthUserFile {config}.users\nAllowOverwrite on\nAllowStoreRestart on\n')
try:
    os.chroot('/')  # only who may do this can lock a session in
    settings += 'DefaultRoot ~\n'
except PermissionError:
    pass
with open(config, 'w') as file:
    file.write(settings)
print(listener.getsockname()[1], flush=True)
while True:  # one process for each connection, as the internet super-server starts it
    peer, _ = listener.accept()
    subprocess.Popen([program, '-c', config], stdin=peer, stdout=peer, stderr=peer)
    peer.close()
