"""What a helper of someone who does not see hears and does on the accessibility bus.

It prints a line "said TEXT" for each notification that comes up. It reads commands, a line each:
"press NAME" does a control's action and prints "pressed NAME" when the program has answered; "look
NAME" prints "saw ROLE CHILDREN DESCRIPTION" of what has that name, "saw nothing" if there is none.
It needs Debian's own Python, for which the bus has a module.
"""
import sys
import threading

import pyatspi
from gi.repository import GLib


def say(*words):
    print(*words, flush=True)


def find(name):
    def named(accessible):
        return accessible is not None and accessible.name == name
    for program in pyatspi.Registry.getDesktop(0):
        if program is None or program.name != "zelvo":
            continue
        for window in reversed(list(program)):  # the latest first
            found = window if named(window) else pyatspi.findDescendant(window, named)
            if found is not None:
                return found
    return None


def showing(event):
    if event.detail1 and event.source.getRole() == pyatspi.ROLE_NOTIFICATION:
        say("said", event.source.name)


def obey(line):
    command, name = line.rstrip("\n").split(" ", 1)
    found = find(name)
    if found is None:
        say("saw nothing")
    elif command == "press":
        actions = found.queryAction()
        names = [actions.getName(i) for i in range(actions.nActions)]
        actions.doAction(names.index("Press"))
        say("pressed", name)
    else:
        say("saw", found.getRoleName(), found.childCount, found.description)


def read():
    for line in sys.stdin:
        GLib.idle_add(obey, line)
    GLib.idle_add(pyatspi.Registry.stop)


pyatspi.Registry.registerEventListener(showing, "object:state-changed:showing")
threading.Thread(target=read, daemon=True).start()
say("listens")
pyatspi.Registry.start()
