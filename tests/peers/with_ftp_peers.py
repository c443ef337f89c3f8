#!/usr/bin/python3
"""Runs a program with FTP servers at its side, and ends with the program's exit code.

Usage: with_ftp_peers.py [--need-port-21] PROGRAM [ARGUMENT...]

The servers listen on addresses of 127.0.0.0/8 that are drawn anew for each run (and on ::1), so that
runs do not meet. QDACORE_FTP_PEERS names a file of "key=value" lines, which tells the program where
they are; a key with "why_not" in front of a server's name says why it is missing. All that they
were told stands in SERVER.seen, one command a line, and what they stored below SERVER/.

  plain     pyftpdlib: anonymous and the user "tester" with the password "se:cret" (and "full",
            whose home is a disk of 64 KiB), on port 21 and on another
  slow      pyftpdlib, throttled to 256 KiB a second, user "tester"
  six       pyftpdlib on ::1, port 21
  vsftpd    anonymous and "tester", port 21 and another
  script    does what the user's or the file's name says: see scripted_ftp.py

Everything runs at most 280 seconds, and nothing of it outlives this process.
"""

import ctypes
import errno
import os
import random
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import threading
import time
import warnings

# Debian 12's Python has it, and says at each use that a later one will not.
warnings.simplefilter("ignore")
import crypt  # noqa: E402

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import scripted_ftp  # noqa: E402

try:
    from pyftpdlib.authorizers import DummyAuthorizer
    from pyftpdlib.handlers import FTPHandler, ThrottledDTPHandler
    from pyftpdlib.ioloop import IOLoop
    from pyftpdlib.servers import FTPServer
    import logging
    # Whatever goes wrong is seen from the outside.
    logging.getLogger("pyftpdlib").addHandler(logging.NullHandler())
    logging.getLogger("pyftpdlib").propagate = False
except ImportError:
    sys.exit("with_ftp_peers: Debian's package python3-pyftpdlib is missing")

MOST_SECONDS = 280
PASSWORD = "se:cret"
libc = ctypes.CDLL(None, use_errno=True)


def die_with_parent():
    libc.prctl(1, signal.SIGKILL)  # PR_SET_PDEATHSIG


def own_mounts():
    """A mount namespace of our own, where that is allowed: what is mounted there nobody else sees."""
    if os.geteuid() != 0 or libc.unshare(0x20000) != 0:  # CLONE_NEWNS
        return False
    return libc.mount(b"none", b"/", None, 0x44000, None) == 0  # MS_REC | MS_PRIVATE


def own_address():
    return "127.%d.%d.%d" % (random.randint(1, 254), random.randint(0, 254), random.randint(2, 254))


def can_listen(address, port):
    """Empty, or why not."""
    family = socket.AF_INET6 if ":" in address else socket.AF_INET
    try:
        with socket.socket(family, socket.SOCK_STREAM) as attempt:
            attempt.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
            attempt.bind((address, port))
        return ""
    except OSError as failure:
        if failure.errno == errno.EACCES:
            return "port %d takes root" % port
        return "%s port %d: %s" % (address, port, failure.strerror)


class Peers:
    def __init__(self, folder):
        self.folder = folder
        self.facts = {"folder": folder}
        self.children = []
        self.mounts = own_mounts()
        self.loop = IOLoop()

    def path(self, *parts):
        return os.path.join(self.folder, *parts)

    def make(self, *parts):
        os.makedirs(self.path(*parts), exist_ok=True)
        return self.path(*parts)

    def fact(self, key, value):
        self.facts[key] = str(value)

    def handler(self, name, authorizer):
        seen = open(self.path(name + ".seen"), "a", buffering=1)

        class Handler(FTPHandler):
            def pre_process_command(self, line, cmd, arg):
                seen.write("%s %s\n" % (cmd, arg) if arg else cmd + "\n")
                FTPHandler.pre_process_command(self, line, cmd, arg)

        Handler.authorizer = authorizer
        Handler.banner = "ready"
        Handler.auth_failed_timeout = 0.2
        # Set here, so that it does not leak from one server's class to another's.
        Handler.dtp_handler = FTPHandler.dtp_handler
        return Handler

    def authorizer(self, name):
        everything = "elradfmwMT"
        result = DummyAuthorizer()
        result.add_anonymous(self.make(name, "anonymous"), perm=everything)
        result.add_user("tester", PASSWORD, self.make(name, "tester", ), perm=everything)
        self.make(name, "tester", "in", "box")
        self.make(name, "anonymous", "in")
        full = self.make(name, "full")
        if name == "plain":
            if self.mounts and libc.mount(b"none", full.encode(), b"tmpfs", 0, b"size=64k") == 0:
                result.add_user("full", PASSWORD, full, perm=everything)
            else:
                self.fact("why_not_full", "mounting a small disk takes root")
        return result

    def python_server(self, name, address, with_port_21, handler=None):
        handler = handler or self.handler(name, self.authorizer(name))
        server = FTPServer((address, 0), handler, ioloop=self.loop)
        self.fact(name + "_address", address)
        self.fact(name + "_port", server.address[1])
        if with_port_21:
            self.fact("why_not_" + name + "_21", can_listen(address, 21))
            if not self.facts["why_not_" + name + "_21"]:
                FTPServer((address, 21), handler, ioloop=self.loop)

    def six(self):
        reason = "the port of ::1 is taken"
        for _ in range(50):  # another run may have it for a while
            reason = can_listen("::1", 21)
            if not reason or "root" in reason or "assign" in reason:
                break
            time.sleep(0.2)
        self.fact("why_not_six_21", reason)
        if not reason:
            FTPServer(("::1", 21), self.handler("six", self.authorizer("six")), ioloop=self.loop)

    def slow(self):
        handler = self.handler("slow", self.authorizer("slow"))

        class Throttled(ThrottledDTPHandler):
            read_limit = 256 * 1024
            write_limit = 256 * 1024

        handler.dtp_handler = Throttled
        self.python_server("slow", own_address(), False, handler)

    def cover(self, file, text):
        """Another text for a system's file, for what is below this process."""
        copy = self.path("etc-" + os.path.basename(file))
        with open(copy, "w") as target:
            target.write(text)
        return libc.mount(copy.encode(), file.encode(), None, 0x1000, None) == 0  # MS_BIND

    def vsftpd(self):
        name = "vsftpd"
        if not shutil.which("/usr/sbin/vsftpd"):
            return "Debian's package vsftpd is missing"
        if not self.mounts:
            return "vsftpd takes root"
        os.chmod(self.folder, 0o755)
        anonymous, tester = self.make(name, "anonymous"), self.make(name, "tester")
        for writable in (tester, self.make(name, "tester", "in")):
            os.chown(writable, 64321, 65534)
        os.chown(self.make(name, "anonymous", "in"), 64322, 65534)
        # Accounts of its own, which only what is below this process sees.
        word = crypt.crypt(PASSWORD, crypt.METHOD_SHA512)
        with open("/etc/passwd") as file:
            accounts = file.read()
        accounts += "tester:x:64321:65534::%s:/bin/sh\n" % tester
        accounts += "ftp-peer:x:64322:65534::%s:/usr/sbin/nologin\n" % anonymous
        if not (self.cover("/etc/passwd", accounts)
                and self.cover("/etc/shadow", "tester:%s:19000:0:99999:7:::\n" % word)):
            return "accounts for the test cannot be made"
        address = own_address()
        with socket.socket() as probe:
            probe.bind((address, 0))
            other_port = probe.getsockname()[1]
        self.fact("why_not_vsftpd_21", can_listen(address, 21))
        ports = [other_port] + ([] if self.facts["why_not_vsftpd_21"] else [21])
        for port in ports:
            configuration = self.path("vsftpd.%d.conf" % port)
            options = dict(
                listen="YES", listen_address=address, listen_port=port, background="NO",
                anonymous_enable="YES", local_enable="YES", ftp_username="ftp-peer",
                nopriv_user="nobody",
                anon_root=anonymous, write_enable="YES",
                anon_upload_enable="YES", anon_other_write_enable="YES",
                check_shell="NO",
                seccomp_sandbox="NO", connect_from_port_20="NO", port_enable="NO",
                secure_chroot_dir=self.make("empty"), pam_service_name="vsftpd",
                log_ftp_protocol="YES", xferlog_enable="YES", syslog_enable="NO",
                vsftpd_log_file=self.path("vsftpd.seen"), session_support="NO")
            with open(configuration, "w") as file:
                file.writelines("%s=%s\n" % option for option in options.items())
            self.children.append(subprocess.Popen(
                ["/usr/sbin/vsftpd", configuration], stdin=subprocess.DEVNULL,
                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, preexec_fn=die_with_parent))
        for port in ports:
            if not scripted_ftp.wait_for(address, port):
                return "vsftpd does not start"
        self.fact("vsftpd_address", address)
        self.fact("vsftpd_port", other_port)
        return ""

    def start(self):
        self.python_server("plain", own_address(), True)
        self.slow()
        self.six()
        self.fact("why_not_vsftpd", self.vsftpd())
        scripted_ftp.start(self.folder, own_address(), can_listen, self.fact)
        threading.Thread(target=self.loop.loop, daemon=True).start()
        facts = self.path("facts")
        with open(facts, "w") as file:
            file.writelines("%s=%s\n" % fact for fact in self.facts.items())
        return facts

    def stop(self):
        for child in self.children:
            child.kill()
            child.wait()
        if self.mounts:
            libc.umount2(self.path("plain", "full").encode(), 2)
        shutil.rmtree(self.folder, ignore_errors=True)


def main(arguments):
    if arguments[:1] == ["--need-port-21"]:
        arguments = arguments[1:]
        reason = can_listen("127.0.0.1", 21)
        if "root" in reason:
            print("skipped: " + reason)
            return 77
    if not arguments:
        sys.exit(__doc__)
    # A dying parent or an impatient test runner ends us in an orderly way.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    peers = Peers(tempfile.mkdtemp(prefix="ftp-peers-"))
    try:
        environment = dict(os.environ, QDACORE_FTP_PEERS=peers.start())
        program = subprocess.Popen(arguments, env=environment)
        try:
            return program.wait(MOST_SECONDS)
        except subprocess.TimeoutExpired:
            print("with_ftp_peers: not done after %d seconds" % MOST_SECONDS)
            return 1
        finally:
            if program.poll() is None:
                program.kill()
                program.wait()
    finally:
        peers.stop()


if __name__ == "__main__":
    code = main(sys.argv[1:])
    sys.stdout.flush()
    # Threads of the servers may still be about.
    os._exit(code if code >= 0 else 1)
