# SPDX-License-Identifier: MIT
"""Serves a folder over FTP with a server that others wrote, on a free port of loopback, and prints the port.
pyftpdlib lets in "vell" with "ruxo", vsftpd anybody; CONFIG is a file to write. Prints 0 when the server is not there.
    realServer.py pyftpdlib|vsftpd FOLDER CONFIG"""
import logging, os, socket, subprocess, sys  # noqa: E401

server, folder, config = sys.argv[1:]
if server == 'pyftpdlib':
    try:
        from pyftpdlib import authorizers, handlers, servers
    except ImportError:
        sys.exit(print(0))
    logging.disable(logging.CRITICAL)
    handlers.FTPHandler.authorizer = authorizers.DummyAuthorizer()
    handlers.FTPHandler.authorizer.add_user('vell', 'ruxo', folder, perm='elradfmwMT')
    handlers.FTPHandler.auth_failed_timeout = 0
    ftp = servers.FTPServer(('127.0.0.1', 0), handlers.FTPHandler)
    print(ftp.address[1], flush=True)
    ftp.serve_forever()
if not os.access('/usr/sbin/vsftpd', os.X_OK):
    sys.exit(print(0))
with open(config, 'w') as file:
    file.write('listen=NO\nrun_as_launching_user=YES\nseccomp_sandbox=NO\nlocal_enable=NO\nwrite_enable=YES\n'
               'anonymous_enable=YES\nanon_upload_enable=YES\nanon_mkdir_write_enable=YES\nanon_umask=022\n'
               f'anon_other_write_enable=YES\nconnect_from_port_20=NO\nanon_root={folder}\n')
listener = socket.create_server(('127.0.0.1', 0))
print(listener.getsockname()[1], flush=True)
while True:  # one process for each connection, as the internet super-server starts it
    peer, _ = listener.accept()
    subprocess.Popen(['/usr/sbin/vsftpd', config], stdin=peer, stdout=peer, stderr=peer)
    peer.close()
