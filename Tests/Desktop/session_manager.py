"""A session manager: what a desktop runs to end all of its programs at logout.

Started as a program of its own, it prints the address at which programs find it. Each line on its
input is an order, answered by one line when it is done:

    join     waits until a program has joined the session
    logout   asks that program to save itself and then to end, as at the end of a session
    cancel   asks it to save itself, as before a logout that someone else calls off
"""

import ctypes
import select
import subprocess
import sys
from ctypes import CFUNCTYPE, POINTER, byref, c_char_p, c_int, c_ulong, c_void_p

from waiting import PATIENCE

SAVE_BOTH = 2
SAVE_LOCAL = 1
INTERACT_NONE = 0
INTERACT_ANY = 2

Status = c_int
# The library gives every call back its own arguments; more than are used do no harm to leave out.
NewClient = CFUNCTYPE(Status, c_void_p, c_void_p, POINTER(c_ulong), c_void_p, c_void_p)
RegisterClient = CFUNCTYPE(Status, c_void_p, c_void_p, c_void_p)
Notice = CFUNCTYPE(None, c_void_p, c_void_p, c_void_p, c_void_p)
SaveRequest = CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_int, c_int, c_int, c_int)
Done = CFUNCTYPE(None, c_void_p, c_void_p, c_int)
Close = CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_void_p)
Properties = CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_void_p)
AnyoneMayJoin = CFUNCTYPE(c_int, c_char_p)


class Callbacks(ctypes.Structure):
    """What a manager answers, in the library's order."""
    _fields_ = [field for name, kind in (
        ("register", RegisterClient), ("interact_request", Notice), ("interact_done", Notice),
        ("save_request", SaveRequest), ("phase_2_request", Notice), ("save_done", Done),
        ("close", Close), ("set_properties", Properties), ("delete_properties", Properties),
        ("get_properties", Notice),
    ) for field in ((name, kind), (f"{name}_data", c_void_p))]


ALL_CALLBACKS = (1 << 10) - 1


class SessionManager:
    """Serves one program on the reference library of the X session protocol."""

    def __init__(self):
        self._ice = ctypes.CDLL("libICE.so.6")
        self._sm = ctypes.CDLL("libSM.so.6")
        for function in (self._ice.IceAcceptConnection, self._sm.SmsGenerateClientID):
            function.restype = c_void_p
        self._ice.IceComposeNetworkIdList.restype = c_char_p
        self.client = None
        self.saved = self.gone = False
        self._connections = []
        self._orders = []
        self._callbacks = Callbacks(
            register=RegisterClient(self._register), interact_request=Notice(lambda *_: None),
            interact_done=Notice(lambda *_: None), save_request=SaveRequest(lambda *_: None),
            phase_2_request=Notice(self._phase_2), save_done=Done(self._save_done),
            close=Close(self._close), set_properties=Properties(lambda *_: None),
            delete_properties=Properties(lambda *_: None), get_properties=Notice(lambda *_: None))
        self._new_client = NewClient(self._meet)
        self._anyone = AnyoneMayJoin(lambda _: 1)
        self._listen()

    def _listen(self):
        error = ctypes.create_string_buffer(256)
        assert self._sm.SmsInitialize(b"Fernwick tests", b"1", self._new_client, None,
                                      self._anyone, len(error), error), error.value
        # No port of the network.
        self._ice._IceTransNoListen(b"tcp")
        count, self._listeners = c_int(), POINTER(c_void_p)()
        assert self._ice.IceListenForConnections(byref(count), byref(self._listeners),
                                                 len(error), error), error.value
        self._doors = {}
        for number in range(count.value):
            door = c_void_p(self._listeners[number])
            self._ice.IceSetHostBasedAuthProc(door, self._anyone)
            self._doors[self._ice.IceGetListenConnectionNumber(door)] = door
        self.address = self._ice.IceComposeNetworkIdList(count, self._listeners).decode()

    def _meet(self, client, _, mask, callbacks, __):
        mask[0] = ALL_CALLBACKS
        ctypes.memmove(callbacks, byref(self._callbacks), ctypes.sizeof(Callbacks))
        self.client = c_void_p(client)
        return 1

    def _register(self, client, _, previous):
        identity = self._sm.SmsGenerateClientID(c_void_p(client))
        self._sm.SmsRegisterClientReply(c_void_p(client), c_void_p(identity))
        # A newcomer saves itself once; until it has, it has not joined.
        self._ask_to_save(SAVE_LOCAL, False, INTERACT_NONE)
        return 1

    def _phase_2(self, client, *_):
        self._sm.SmsSaveYourselfPhase2(c_void_p(client))

    def _save_done(self, client, _, success):
        self.saved = bool(success)

    def _close(self, client, *_):
        self.gone = True

    def _ask_to_save(self, kind, shutdown, interact):
        self.saved = False
        self._sm.SmsSaveYourself(self.client, kind, int(shutdown), interact, 0)

    def serve_until(self, reached):
        while not reached():
            ready, _, _ = select.select([sys.stdin, *self._doors, *self._numbers()], [], [])
            for number in ready:
                if number is sys.stdin:
                    self._orders.append(sys.stdin.readline().strip())
                elif number in self._doors:
                    self._accept(self._doors[number])
                else:
                    self._listen_to(self._numbers()[number])

    def _numbers(self):
        return {self._ice.IceConnectionNumber(each): each for each in self._connections}

    def _accept(self, door):
        status = c_int()
        connection = c_void_p(self._ice.IceAcceptConnection(door, byref(status)))
        if connection:
            self._connections.append(connection)

    def _listen_to(self, connection):
        if self._ice.IceProcessMessages(connection, None, None) != 0:
            self._connections.remove(connection)
            self._ice.IceCloseConnection(connection)
            self.gone = True

    def next_order(self):
        """Serves until one comes; "" at the end of the input."""
        self.serve_until(lambda: self._orders)
        return self._orders.pop(0)

    # The orders.

    def join(self):
        self.serve_until(lambda: self.client is not None and self.saved)

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
    """The manager in a process of its own, which ends with `stop`."""

    def __init__(self, environment):
        self._process = subprocess.Popen(
            [sys.executable, __file__], env=environment, text=True, stdin=subprocess.PIPE,
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.address = self._process.stdout.readline().strip()

    def order(self, order):
        """Gives an order and waits until it is carried out."""
        self._process.stdin.write(order + "\n")
        self._process.stdin.flush()
        # A game that never does its part must not hold up the test for ever.
        answered, _, _ = select.select([self._process.stdout], [], [], PATIENCE)
        assert answered, f"{order}: not carried out within {PATIENCE} s"
        assert self._process.stdout.readline() == f"{order} done\n"

    def stop(self):
        self._process.kill()
        self._process.communicate()


def main():
    manager = SessionManager()
    print(manager.address, flush=True)
    while order := manager.next_order():
        getattr(manager, order)()
        print(order, "done", flush=True)


if __name__ == "__main__":
    main()
