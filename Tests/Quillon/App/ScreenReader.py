# SPDX-License-Identifier: GPL-3.0-or-later
"""What a screen reader has of a program: its accessible objects over a bus, its events and the keyboard.

`Desk` is a display with a session bus and an accessibility bus of its own, below a home that nobody else uses.
Nothing of it is left when it is closed. It sets the environment of this process: one at a time.
"""

import ctypes
import os
import signal
import subprocess
import tempfile

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

LIMIT_SECONDS = 60  # Far above what any step takes: who comes to it has failed.
State = Atspi.StateType


def endWithParent():
    deathSignal = 1  # PR_SET_PDEATHSIG
    ctypes.CDLL(None).prctl(deathSignal, signal.SIGTERM)


def waitFor(condition, what):
    """The first value of `condition()` that is true: asked again whenever an event came in, and now and then
    besides, for not every change is told. Fails after the limit."""
    isLate = []
    limit = GLib.timeout_add_seconds(LIMIT_SECONDS, lambda: isLate.append(True))
    tick = GLib.timeout_add(40, lambda: True)
    try:
        while True:
            try:
                value = condition()
            except GLib.Error:
                value = None  # It went away while it was read.
            if value:
                return value
            if isLate:
                raise AssertionError(f"not within {LIMIT_SECONDS} s: {what}")
            GLib.MainContext.default().iteration(True)
    finally:
        GLib.source_remove(tick)
        if not isLate:
            GLib.source_remove(limit)


class Desk:
    def __init__(self):
        self.home = tempfile.TemporaryDirectory(prefix="quillon-desk-", ignore_cleanup_errors=True)
        runtime = os.path.join(self.home.name, "run")
        os.mkdir(runtime, 0o700)
        for name in list(os.environ):
            if name.startswith(("QT_", "XDG_", "DBUS_", "AT_SPI", "GTK_", "WAYLAND_")):
                del os.environ[name]
        os.environ.update(HOME=self.home.name, XDG_RUNTIME_DIR=runtime, LC_ALL="C.UTF-8")
        self.processes = []
        ready, said = os.pipe()
        self.start("Xvfb", "-displayfd", str(said), "-screen", "0", "1400x1000x24", "-nolisten", "tcp",
                   pass_fds=[said])
        os.close(said)
        with os.fdopen(ready) as display:
            os.environ["DISPLAY"] = ":" + display.readline().strip()
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address", stdout=subprocess.PIPE)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().decode().strip()
        self.start("openbox", "--sm-disable")
        # What a screen reader says when it comes up; programs tell nothing of themselves before.
        Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
            GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True))),
            None, Gio.DBusCallFlags.NONE, LIMIT_SECONDS * 1000, None)
        self.focused = None
        self.listener = Atspi.EventListener.new(self.follow)
        self.listener.register("object:state-changed:focused")

    def follow(self, event):
        if not event.detail1:
            return
        try:
            # A table says, behind itself, which cell has the keyboard; that may well be an empty one.
            isPart = event.source.get_role_name() in ("table cell", "list item")
            self.focused = event.source.get_parent() if isPart else event.source
        except GLib.Error:
            pass  # It is gone already.

    def start(self, *command, **more):
        more.setdefault("stdout", subprocess.DEVNULL)
        process = subprocess.Popen(command, stderr=subprocess.DEVNULL, preexec_fn=endWithParent, **more)
        self.processes.append(process)
        return process

    def run(self, *command):
        """Starts a program; the root of its objects, once its window has the keyboard."""
        self.focused = None
        pid = self.start(*command).pid
        desktop = Atspi.get_desktop(0)

        def itsRoot():
            for index in range(desktop.get_child_count()):
                root = desktop.get_child_at_index(index)
                if root is not None and root.get_process_id() == pid:
                    return root

        root = waitFor(itsRoot, "the program says nothing of itself")
        # What is asked once is otherwise taken for the answer until an event says that it is no longer.
        root.set_cache_mask(Atspi.Cache.NONE)
        waitFor(lambda: find(root, role="frame"), "no window")
        waitFor(lambda: self.focused, "nothing has the keyboard")
        return root

    def press(self, keysym):
        Atspi.generate_keyboard_event(keysym, None, Atspi.KeySynthType.SYM)

    def end(self, root):
        pid = root.get_process_id()
        for process in [p for p in self.processes if p.pid == pid]:
            process.terminate()
            process.wait(LIMIT_SECONDS)
            self.processes.remove(process)

    def close(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait(LIMIT_SECONDS)
            if process.stdout is not None:
                process.stdout.close()
        self.home.cleanup()


def has(node, state):
    return node.get_state_set().contains(state)


def children(node):
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield child


def shown(node):
    """The objects on the screen below `node`, itself included, in their order; of tables the table alone."""
    if not has(node, State.SHOWING):
        return
    yield node
    if not has(node, State.MANAGES_DESCENDANTS):
        for child in children(node):
            yield from shown(child)


def find(root, **wanted):
    """The first of the objects on the screen with this role and name; None if there is none."""
    for node in shown(root):
        if "role" in wanted and node.get_role_name() != wanted["role"]:
            continue
        if "name" in wanted and label(node) != wanted["name"]:
            continue
        return node
    return None


def label(node):
    """What the object is called: by the label beside it, else by its own name."""
    for relation in node.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY and relation.get_n_targets():
            return relation.get_target(0).get_name()
    return node.get_name()


def act(node, action):
    for index in range(node.get_n_actions()):
        if node.get_action_name(index) == action:
            assert node.do_action(index), f"{action} of {label(node)} fails"
            return
    raise AssertionError(f"{label(node)} has no action {action}")


def tableTexts(table):
    """The names of all cells, row by row."""
    return [[table.get_accessible_at(row, column).get_name() for column in range(table.get_n_columns())]
            for row in range(table.get_n_rows())]
