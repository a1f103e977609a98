"""An X session manager (XSMP) on libSM and libICE, for one client.

As a program it prints its address for SESSION_MANAGER, then reads commands from stdin, one a line,
and prints a line when each is done:

    join     waits until a client has registered
    save     sends SaveYourself without shutdown; prints the client's RestartCommand as JSON
    logout   sends SaveYourself with shutdown, then Die
    cancel   sends SaveYourself with shutdown, then ShutdownCancelled
"""

import ctypes
import json
import select
import subprocess
import sys
from ctypes import CFUNCTYPE, POINTER, byref, c_char_p, c_int, c_ulong, c_void_p

from waiting import TIMEOUT

SAVE_BOTH = 2
SAVE_LOCAL = 1
INTERACT_NONE = 0
INTERACT_ANY = 2

Status = c_int
# Trailing arguments that are not used are left out.
NewClient = CFUNCTYPE(Status, c_void_p, c_void_p, POINTER(c_ulong), c_void_p, c_void_p)
RegisterClient = CFUNCTYPE(Status, c_void_p, c_void_p, c_void_p)
Callback = CFUNCTYPE(None, c_void_p, c_void_p, c_void_p, c_void_p)
SaveRequest = CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_int, c_int, c_int, c_int)
Done = CFUNCTYPE(None, c_void_p, c_void_p, c_int)
Close = CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_void_p)
Properties = CFUNCTYPE(None, c_void_p, c_void_p, c_int, POINTER(c_void_p))
HostAuthentication = CFUNCTYPE(c_int, c_char_p)


class Callbacks(ctypes.Structure):
    """SmsCallbacks of SMlib.h."""
    _fields_ = [field for name, kind in (
        ("register", RegisterClient), ("interact_request", Callback), ("interact_done", Callback),
        ("save_request", SaveRequest), ("phase_2_request", Callback), ("save_done", Done),
        ("close", Close), ("set_properties", Properties), ("delete_properties", Properties),
        ("get_properties", Callback),
    ) for field in ((name, kind), (f"{name}_data", c_void_p))]


class PropertyValue(ctypes.Structure):
    """SmPropValue of SMlib.h."""
    _fields_ = [("length", c_int), ("value", c_void_p)]


class Property(ctypes.Structure):
    """SmProp of SMlib.h."""
    _fields_ = [("name", c_char_p), ("type", c_char_p), ("count", c_int),
                ("values", POINTER(PropertyValue))]


ALL_CALLBACKS = (1 << 10) - 1


class SessionManager:
    """Serves one client."""

    def __init__(self):
        self._ice = ctypes.CDLL("libICE.so.6")
        self._sm = ctypes.CDLL("libSM.so.6")
        for function in (self._ice.IceAcceptConnection, self._sm.SmsGenerateClientID):
            function.restype = c_void_p
        self._ice.IceComposeNetworkIdList.restype = c_char_p
        self.client = None
        self.saved = self.gone = False
        self._restart_command = None
        self._connections = []
        self._commands = []
        self._callbacks = Callbacks(
            register=RegisterClient(self._register), interact_request=Callback(lambda *_: None),
            interact_done=Callback(lambda *_: None), save_request=SaveRequest(lambda *_: None),
            phase_2_request=Callback(self._phase_2), save_done=Done(self._save_done),
            close=Close(self._close), set_properties=Properties(self._set_properties),
            delete_properties=Properties(lambda *_: None), get_properties=Callback(lambda *_: None))
        self._new_client = NewClient(self._accept_client)
        self._allow_all = HostAuthentication(lambda _: 1)
        self._listen()

    def _listen(self):
        error = ctypes.create_string_buffer(256)
        assert self._sm.SmsInitialize(b"Fernwick tests", b"1", self._new_client, None,
                                      self._allow_all, len(error), error), error.value
        # No TCP port.
        self._ice._IceTransNoListen(b"tcp")
        count, self._listeners = c_int(), POINTER(c_void_p)()
        assert self._ice.IceListenForConnections(byref(count), byref(self._listeners),
                                                 len(error), error), error.value
        self._listening = {}
        for number in range(count.value):
            listener = c_void_p(self._listeners[number])
            self._ice.IceSetHostBasedAuthProc(listener, self._allow_all)
            self._listening[self._ice.IceGetListenConnectionNumber(listener)] = listener
        self.address = self._ice.IceComposeNetworkIdList(count, self._listeners).decode()

    def _accept_client(self, client, _, mask, callbacks, __):
        mask[0] = ALL_CALLBACKS
        ctypes.memmove(callbacks, byref(self._callbacks), ctypes.sizeof(Callbacks))
        self.client = c_void_p(client)
        return 1

    def _register(self, client, _, previous):
        identity = self._sm.SmsGenerateClientID(c_void_p(client))
        self._sm.SmsRegisterClientReply(c_void_p(client), c_void_p(identity))
        # XSMP requires an initial SaveYourself after registration.
        self._ask_to_save(SAVE_LOCAL, False, INTERACT_NONE)
        return 1

    def _phase_2(self, client, *_):
        self._sm.SmsSaveYourselfPhase2(c_void_p(client))

    def _save_done(self, client, _, success):
        self.saved = bool(success)

    def _set_properties(self, client, _, count, addresses):
        for number in range(count):
            each = Property.from_address(addresses[number])
            if each.name == b"RestartCommand":
                self._restart_command = [
                    ctypes.string_at(value.value, value.length).decode()
                    for value in each.values[:each.count]]

    def _close(self, client, *_):
        self.gone = True

    def _ask_to_save(self, kind, shutdown, interact):
        self.saved = False
        self._sm.SmsSaveYourself(self.client, kind, int(shutdown), interact, 0)

    def serve_until(self, condition):
        while not condition():
            ready, _, _ = select.select(
                [sys.stdin, *self._listening, *self._file_descriptors()], [], [])
            for number in ready:
                if number is sys.stdin:
                    self._commands.append(sys.stdin.readline().strip())
                elif number in self._listening:
                    self._accept(self._listening[number])
                else:
                    self._process_messages(self._file_descriptors()[number])

    def _file_descriptors(self):
        return {self._ice.IceConnectionNumber(each): each for each in self._connections}

    def _accept(self, listener):
        status = c_int()
        connection = c_void_p(self._ice.IceAcceptConnection(listener, byref(status)))
        if connection:
            self._connections.append(connection)

    def _process_messages(self, connection):
        if self._ice.IceProcessMessages(connection, None, None) != 0:
            self._connections.remove(connection)
            self._ice.IceCloseConnection(connection)
            self.gone = True

    def next_command(self):
        """Serves until there is a command; "" at the end of stdin."""
        self.serve_until(lambda: self._commands)
        return self._commands.pop(0)

    # The commands.

    def join(self):
        self.serve_until(lambda: self.client is not None and self.saved)

    def save(self):
        self._ask_to_save(SAVE_BOTH, False, INTERACT_NONE)
        self.serve_until(lambda: self.saved)
        return json.dumps(self._restart_command)

    def logout(self):
        self._ask_to_save(SAVE_BOTH, True, INTERACT_ANY)
        self.serve_until(lambda: self.saved)
        self._sm.SmsDie(self.client)
        self.serve_until(lambda: self.gone)

    def cancel(self):
        self._ask_to_save(SAVE_BOTH, True, INTERACT_ANY)
        self.serve_until(lambda: self.saved)
        self._sm.SmsShutdownCancelled(self.client)


class SessionManagerProcess:
    """The session manager as a child process, until `stop`."""

    def __init__(self, environment):
        self._process = subprocess.Popen(
            [sys.executable, __file__], env=environment, text=True, stdin=subprocess.PIPE,
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.address = self._process.stdout.readline().strip()

    def run(self, command):
        """Sends a command and waits until it is done; returns what it printed."""
        self._process.stdin.write(command + "\n")
        self._process.stdin.flush()
        done, _, _ = select.select([self._process.stdout], [], [], TIMEOUT)
        assert done, f"{command}: not done within {TIMEOUT} s"
        done, _, printed = self._process.stdout.readline().strip().partition(" ")
        assert done == command
        return printed

    def stop(self):
        self._process.kill()
        self._process.communicate()


def main():
    manager = SessionManager()
    print(manager.address, flush=True)
    while command := manager.next_command():
        print(command, getattr(manager, command)() or "", flush=True)


if __name__ == "__main__":
    main()
