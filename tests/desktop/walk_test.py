"""The program as pupils meet it, from the start to the question whether to stop: on a display and a session bus of its
own, walked by keys, with the mouse and by a screen reader's actions. Fails where there is no bus. usage: PROGRAM"""
import atexit
import os
import subprocess
import sys
import time


def start(*command):
    """A process that ends with this one."""
    process = subprocess.Popen(command, stdout=subprocess.PIPE, text=True)
    atexit.register(process.kill)
    return process


# The display first: whatever the bus starts is to find it.
display = start("Xvfb", "-displayfd", "1", "-screen", "0", "1366x768x24", "-noreset")
os.environ["DISPLAY"] = ":" + display.stdout.readline().strip()
bus = start("dbus-daemon", "--session", "--nofork", "--print-address")
os.environ["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
os.environ |= {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_QPA_PLATFORM": "xcb"}

import gi  # noqa: E402

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 15  # seconds for whatever is waited for
Relation, Role, State = Atspi.RelationType, Atspi.Role, Atspi.StateType
announced = []  # the names of notifications that began to show


def on_event(event):
    try:
        if event.detail1 == 1 and event.source.get_role() == Role.NOTIFICATION:
            announced.append(event.source.get_name())
    except GLib.Error:
        pass  # its object has gone already


def wait_for(what, look):
    """What look() returns as soon as that is something; meanwhile events come in."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            if found := look():
                return found
        except GLib.Error:
            pass  # the tree changed while it was read
        time.sleep(0.02)
    check(False, f"no {what}")


def check(holds, what):
    if not holds:
        seen = [f"{o.get_role_name()} '{o.get_name()}' {o.get_description()}" for o in everything(application())]
        sys.exit("\n".join([what, f"announced: {announced}", *seen]))


def children(of):
    return [child for i in range(of.get_child_count()) if (child := of.get_child_at_index(i))]


def everything(of):
    """All that shows, from the top down."""
    if of.get_state_set().contains(State.SHOWING):
        yield of
        for child in children(of):
            yield from everything(child)


def application():
    return next((each for each in children(Atspi.get_desktop(0)) if each.get_process_id() == program.pid), None)


def shown(role, name="", having=State.SHOWING):
    """Objects of this role whose names begin like this, that have this state."""
    return [o for o in everything(application())
            if o.get_role() == role and o.get_name().startswith(name) and o.get_state_set().contains(having)]


def one(role, name="", having=State.SHOWING):
    return wait_for(f"{role.value_nick} '{name}' {having.value_nick}", lambda: shown(role, name, having))[0]


def act(role, name=""):
    one(role, name, State.ENABLED).do_action(0)


def keys(*names):
    subprocess.run(["xdotool", "key", *names], check=True)


def click(role, name=""):
    at = one(role, name).get_extents(Atspi.CoordType.SCREEN)
    subprocess.run(f"xdotool mousemove {at.x + at.width // 2} {at.y + at.height // 2} click 1".split(), check=True)


def hear(deed):
    """What is announced when this is done."""
    before = len(announced)
    deed()
    return wait_for("announcement", lambda: announced[before:])[-1]


def related(to, relation):
    return [each.get_target(0).get_name() for each in to.get_relation_set() if each.get_relation_type() == relation]


Atspi.init()
listener = Atspi.EventListener.new(on_event)
listener.register("object:state-changed:showing")
program = start(sys.argv[1])
wait_for("program on the bus", application)

# By keys: past the choice of a set and the credits to the first booklet.
wait_for("choice by its digit", lambda: keys("1") or shown(Role.RADIO_BUTTON, "TELMORA", State.CHECKED))
check(len(shown(Role.RADIO_BUTTON)) == 2 and len(shown(Role.RADIO_BUTTON, "", State.CHECKED)) == 1, "one chosen of two")
keys("Return", "Return", "Return")
one(Role.FRAME, "TELMORA's CIJFERLOOP")
one(Role.LIST, "", State.FOCUSED)
keys("End", "Up")
check(not shown(Role.IMAGE), "arrow keys only move")

# Exercises: whoever comes upon an answer hears the question and what the picture shows.
verdicts = set()
while len(verdicts) < 2:  # a wrong answer and the right one
    keys("Home", "Return")
    answer = one(Role.PUSH_BUTTON, "A: ", State.FOCUSED)
    picture = one(Role.IMAGE).get_description()
    labels = [o.get_name().strip() for o in shown(Role.LABEL)]
    check(picture and picture in answer.get_description(), "the picture is read with the answer")
    check(sum(label in answer.get_description() for label in labels) >= 3, "the question is read with it")
    check(all(o.get_name().strip() for o in everything(application())), "a nameless control")
    texts = [o.get_name()[3:] for letter in "ABCD" for o in shown(Role.PUSH_BUTTON, letter + ": ")]
    check(len(texts) == 4 and not set(texts) & set(labels), "an answer shows twice")
    right = False
    while not right:
        tried = one(Role.PUSH_BUTTON, "", State.FOCUSED)
        said = hear(lambda: keys("space"))
        check(any(said.startswith(o.get_name()) for o in shown(Role.LABEL)), f"'{said}' is no verdict on the screen")
        right = bool(shown(Role.PUSH_BUTTON, "uitleg"))
        verdicts.add(right)
        check(tried.get_name().endswith(", goed" if right else ", fout"), "the answer does not say what became of it")
    hear(lambda: keys("Return"))  # on the explanation
    one(Role.LIST, "", State.FOCUSED)
check(", " in one(Role.LIST_ITEM).get_name(), "the title says what became of it")

# The score sheet, by the reader's actions: each value belongs to its caption.
act(Role.PUSH_BUTTON, "score")
sheet = one(Role.DIALOG)
values = wait_for("values", lambda: [o for o in everything(sheet) if related(o, Relation.LABELLED_BY)])
check(len(values) == 4 and all(o.get_name().strip().isdigit() for o in values), "four values with captions")
check(len([o for o in everything(sheet) if related(o, Relation.LABEL_FOR)]) == 4, "four captions of values")
keys("Escape")
wait_for("end of the score sheet", lambda: not shown(Role.DIALOG))

# With the mouse: back to the start and to a task of the other set, past a click on the words of the credits.
act(Role.PUSH_BUTTON, "terug")
one(Role.PUSH_BUTTON, "BOEKJE 1")
click(Role.PUSH_BUTTON, "terug")
click(Role.RADIO_BUTTON, "SOMMENWERF")
click(Role.PUSH_BUTTON, "verder")
click(Role.LABEL, "Twintig taken in twee delen")
click(Role.PUSH_BUTTON, "HERHALING TAAK 6")
one(Role.HEADING, "HERHALING TAAK 6")
click(Role.LIST_ITEM)
for letter in "ABCD":
    if not shown(Role.PUSH_BUTTON, "uitleg"):
        hear(lambda: click(Role.PUSH_BUTTON, letter + ": "))
hear(lambda: click(Role.PUSH_BUTTON, "uitleg"))
one(Role.LIST, "", State.ENABLED)

# The question whether to stop, where No is where the keyboard is.
act(Role.PUSH_BUTTON, "stoppen")
one(Role.DIALOG)
no = one(Role.PUSH_BUTTON, "Nee", State.FOCUSED)
check("stoppen" in no.get_description(), "the question is read with its answer")
act(Role.PUSH_BUTTON, "Ja")
check(program.wait(PATIENCE) == 0, "the program ends well")
