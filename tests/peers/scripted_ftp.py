"""An FTP server that misbehaves as it is told.

What it does follows from the port that it is reached on, from the user's name, or, for downloads,
from the file's name; each is in the tables below. All that it is told it writes to script.seen,
line by line as it came; what it was sent it stores below script/.
"""

import os
import socket
import threading
import time

# By port: the key in the facts, and what comes in place of an ordinary greeting.
GREETINGS = {
    "script_port": b"220 ready\r\n",
    "script_port_421": b"421 Too many here already.\r\n",
    "script_port_silent_end": b"",
    "script_port_endless": None,
}

# By user: the answer to a command, after which the connection is closed when it is 421.
ANSWERS = {
    "cwd550": {"CWD": "550 No such place."},
    "pwd500": {"PWD": "500 Do not ask."},
    "pwdcr": {"PWD": "257 \"/a\rDELE b\""},
    "pwdlong": {"PWD": "257 \"/%s\"" % ("x" * 300)},
    "stor550": {"STOR": "550 Quota of seven bytes is used up."},
    "stor530": {"STOR": "530 Not with that account."},
    "stor421": {"STOR": "421 Going down now."},
    "stormany": {"STOR": "550-First of two lines.\r\n550 Second of two lines."},
    "pasv500": {"PASV": "500 Only active.", "EPSV": "500 Only active."},
}

# By user: closes the control connection at this command, without a word.
HANGS_UP = {"hangcwd": "CWD", "hangpasv": "PASV", "hangstor": "STOR", "hangpass": "PASS"}

# Seconds after which a connection is given up.
LIMIT = 60


def wait_for(address, port):
    for _ in range(100):
        try:
            socket.create_connection((address, port), 1).close()
            return True
        except OSError:
            time.sleep(0.05)
    return False


class Session:
    def __init__(self, control, folder, seen):
        self.control, self.folder, self.seen = control, folder, seen
        self.user = ""
        self.listener = None
        self.trap = None

    def say(self, line):
        self.control.sendall(line.encode("latin-1") + b"\r\n")

    def serve(self):
        reader = self.control.makefile("rb")
        for raw in reader:
            line = raw.decode("latin-1")
            # Whatever else stands in it shows.
            self.seen(line[:-2] if line.endswith("\r\n") else line)
            command, _, argument = line.strip("\r\n").partition(" ")
            command = command.upper()
            if HANGS_UP.get(self.user) == command:
                return
            answer = ANSWERS.get(self.user, {}).get(command)
            if answer:
                self.say(answer)
                if answer.startswith("421"):
                    return
            elif not getattr(self, "do_" + command, self.unknown)(argument):
                return

    def unknown(self, _):
        self.say("502 Not here.")
        return True

    def do_USER(self, name):
        self.user = name
        self.say("331 Password?")
        return True

    def do_PASS(self, _):
        self.say("530 Wrong." if self.user == "login530" else "230 In.")
        return True

    def do_PWD(self, _):
        self.say("257 \"/home\"")
        return True

    def do_CWD(self, _):
        self.say("250 There.")
        return True

    def do_TYPE(self, _):
        self.say("200 So be it.")
        return True

    def do_QUIT(self, _):
        self.say("221 Bye.")
        return False

    def do_PASV(self, _):
        self.listener = socket.create_server((self.control.getsockname()[0], 0))
        self.listener.settimeout(LIMIT)
        address, port = self.listener.getsockname()
        if self.user == "foreign":
            # Somebody else's address; who is sent there is seen.
            address = "127.%d.9.9" % (int(address.split(".")[1]) % 254 + 1)
            self.trap = socket.create_server((address, port))
            threading.Thread(target=self.watch_trap, args=(self.trap,), daemon=True).start()
        self.say("227 Here (%s,%d,%d)." % (address.replace(".", ","), port >> 8, port & 255))
        return True

    def watch_trap(self, trap):
        try:
            trap.settimeout(LIMIT)
            trap.accept()[0].close()
            self.seen("FOREIGN ADDRESS WAS FOLLOWED")
        except OSError:
            pass

    def data(self):
        self.say("150 Go on.")
        connection = self.listener.accept()[0]
        connection.settimeout(LIMIT)
        return connection

    def do_STOR(self, name):
        with self.data() as connection:
            if self.user == "hangmid":
                connection.recv(4096)
                return False
            with open(os.path.join(self.folder, name.replace("/", "_")), "wb") as file:
                for block in iter(lambda: connection.recv(65536), b""):
                    file.write(block)
        if self.user == "late550":
            self.say("550 Came in, was not kept.")
        else:
            self.say("226 Kept.")
        return True

    def do_SIZE(self, _):
        self.say("550 Not told.")
        return True

    def do_RETR(self, name):
        if name == "missing.txt":
            self.say("550 No such file.")
            return True
        with self.data() as connection:
            connection.sendall(b"one\r\ntwo\r\n")
            if name == "hangmid.txt":
                return False
        self.say("226 That was all.")
        return True


def greet_without_end(control):
    try:
        for _ in range(4000):
            control.sendall(b"220-still talking, and talking, and talking on and on\r\n" * 20)
            time.sleep(0.005)
    except OSError:
        pass


def start(folder, address, can_listen, fact):
    os.makedirs(os.path.join(folder, "script"))
    log = open(os.path.join(folder, "script.seen"), "a", buffering=1, encoding="latin-1", newline="")
    lock = threading.Lock()

    def seen(line):
        with lock:
            log.write(line.replace("\r", "<CR>").replace("\n", "<LF>") + "\n")

    def handle(control, greeting):
        control.settimeout(LIMIT)
        with control:
            seen("CONNECTED")
            try:
                if greeting is None:
                    greet_without_end(control)
                else:
                    control.sendall(greeting)
                    if greeting.startswith(b"220"):
                        Session(control, os.path.join(folder, "script"), seen).serve()
            except OSError:
                pass

    def accept(listener, greeting):
        while True:
            control = listener.accept()[0]
            threading.Thread(target=handle, args=(control, greeting), daemon=True).start()

    def listen(port, greeting):
        listener = socket.create_server((address, port))
        threading.Thread(target=accept, args=(listener, greeting), daemon=True).start()
        return listener.getsockname()[1]

    fact("script_address", address)
    for key, greeting in GREETINGS.items():
        fact(key, listen(0, greeting))
    reason = can_listen(address, 21)
    fact("why_not_script_21", reason)
    if not reason:
        listen(21, GREETINGS["script_port"])
