#!/usr/bin/python3
"""What a screen reader finds in quorvel.

Starts the real program under Xvfb on an accessibility bus, opens the host
window, the tour, New Task with Add Project, Add Keyword, Page Setup and
help, an Existing Task on both tabs, a Task Appointment on its three tabs
and the Task Catalog page, and walks each window's accessibility tree as a
screen reader does: every element that can take the focus must have a name
and a real role (not a filler, a panel or an unknown). It also reports where
each dialog opens its focus, and with --focus requires that typing lands
where it makes sense.

Usage: atspi_walk.py [--focus] [--list] QUORVEL QUORVEL_SCRIPT
Exit status 77 (skipped) when Xvfb, D-Bus, the AT-SPI bus or its Python
bindings are missing.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time

SKIP = 77
TOOLS = ("Xvfb", "dbus-run-session", "xdotool")
BUS_LAUNCHER = "/usr/libexec/at-spi-bus-launcher"


def missing_tools():
    gone = [t for t in TOOLS if not shutil.which(t)]
    if not os.path.exists(BUS_LAUNCHER):
        gone.append("at-spi2-core")
    try:
        import pyatspi  # noqa: F401
    except ImportError:
        gone.append("python3-pyatspi")
    return gone


if __name__ == "__main__" and not os.environ.get("QV_ATSPI_BUS"):
    gone = missing_tools()
    if gone:
        print("skipped: missing " + ", ".join(gone))
        sys.exit(SKIP)
    # A private session bus: the accessibility bus starts on it, and dies with it.
    env = dict(os.environ, QV_ATSPI_BUS="1")
    sys.exit(subprocess.call(["dbus-run-session", "--", sys.executable] + sys.argv, env=env))

import pyatspi  # noqa: E402
from gi.repository import Atspi  # noqa: E402

# Roles that say nothing of what an element is.
EMPTY_ROLES = {pyatspi.ROLE_UNKNOWN, pyatspi.ROLE_FILLER, pyatspi.ROLE_PANEL,
               pyatspi.ROLE_REDUNDANT_OBJECT, pyatspi.ROLE_INVALID}

# Where typing makes sense: a text field, or a list one can type into.
FIELDS = (pyatspi.ROLE_TEXT, pyatspi.ROLE_COMBO_BOX)

SEED = """
sql "INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('AAAAAAAA-0000-0000-0000-000000000001', 'Garden')"
sql "INSERT INTO KEYWORDS (keyGUIDID, keySubject, keyKeyword) VALUES ('BBBBBBBB-0000-0000-0000-000000000001', 'Place', 'Outdoors')"
sql "INSERT INTO TASKS (tskGUIDID, tskDesc, tskProject, tskProjectKey, tskStatus, tskImp, tskDifficulty, tskTimeNeeded, tskTimeScheduled, tskTimeSpent, tskCurrent, tskHasSchedule) VALUES ('11111111-0000-0000-0000-000000000001', 'Plant the bulbs', 'Garden', 'AAAAAAAA-0000-0000-0000-000000000001', 3, 2, 1, 120, 90, 0, 1, 1)"
sql "INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taProject, taProjectGUIDID, taStartTime, taEndTime, taTaskDesc, taImp, taDifficulty, taWasWorked, taDuration) VALUES ('22222222-0000-0000-0000-000000000001', '11111111-0000-0000-0000-000000000001', 'Garden', 'AAAAAAAA-0000-0000-0000-000000000001', '2026-11-24T09:00:00.000', '2026-11-24T10:30:00.000', 'Plant the tulips', 2, 1, 0, 90)"
sql "INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taStartTime, taEndTime, taTaskDesc, taImp, taDifficulty, taWasWorked, taDuration, taTimeWorked) VALUES ('22222222-0000-0000-0000-000000000002', '11111111-0000-0000-0000-000000000001', '2026-11-23T09:00:00.000', '2026-11-23T10:00:00.000', 'Dig the bed', 2, 1, 1, 60, 60)"
sql "INSERT INTO TASKSCAT (tskGUIDID, tskDesc, tskStatus, tskImp, tskDifficulty, tskTimeNeeded) VALUES ('33333333-0000-0000-0000-000000000001', 'Weekly report', 3, 1, 1, 60)"
"""


def wait_for(what, probe, timeout=20.0):
    end = time.time() + timeout
    while time.time() < end:
        found = probe()
        if found:
            return found
        time.sleep(0.2)
    raise AssertionError("timed out waiting for " + what)


def state(acc):
    try:
        return acc.getState()
    except Exception:  # the element went while we looked
        return None


def showing(acc):
    st = state(acc)
    return st is not None and st.contains(pyatspi.STATE_SHOWING)


def children(acc):
    try:
        count = acc.childCount
    except Exception:
        return
    for i in range(count):
        try:
            child = acc.getChildAtIndex(i)
        except Exception:
            continue
        if child is not None:
            yield child


def find(root, name=None, role=None):
    """The first showing element under root with that name and role."""
    for child in children(root):
        if not showing(child):
            continue
        if (name is None or child.name == name) and (role is None or child.getRole() == role):
            return child
        hit = find(child, name, role)
        if hit:
            return hit
    return None


def focusables(acc, out):
    for child in children(acc):
        st = state(child)
        if st is None or not st.contains(pyatspi.STATE_SHOWING):
            continue
        if st.contains(pyatspi.STATE_FOCUSABLE):
            out.append(child)
        focusables(child, out)
    return out


def spoken_name(acc):
    """Its name, or on Linux for a combo box its label's (Qt names a combo box by its text)."""
    name = (acc.name or "").strip()
    if name:
        return name
    try:
        for relation in acc.getRelationSet():
            if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY:
                for i in range(relation.getNTargets()):
                    label = (relation.getTarget(i).name or "").strip()
                    if label:
                        return label
    except Exception:
        pass
    return ""


def act(acc, action=None):
    """Runs an element's action by name, or its first (press)."""
    # An action that opens a modal window answers when the window closes:
    # don't wait for that answer.
    Atspi.set_timeout(300, 15000)
    try:
        actions = acc.queryAction()
        names = [actions.getName(i) for i in range(actions.nActions)]
        actions.doAction(names.index(action) if action else 0)
    except Exception:
        pass
    finally:
        # Other calls wait as long as they need on a busy machine; the
        # suite's time limit ends a program that hangs.
        Atspi.set_timeout(-1, -1)
    time.sleep(0.3)


def everything(acc, out):
    """Every showing element, focusable or not (pictures, labels)."""
    for child in children(acc):
        if showing(child):
            out.append(child)
            everything(child, out)
    return out


def focused(window):
    # Qt marks the current tab of every tab strip as focused, whether or not
    # the strip has the focus: a field that has it comes first.
    hits = [acc for acc in focusables(window, []) if state(acc).contains(pyatspi.STATE_FOCUSED)]
    fields = [acc for acc in hits if acc.getRole() != pyatspi.ROLE_PAGE_TAB]
    return (fields or hits or [None])[0]


class Walk:
    def __init__(self, app):
        self.app = app
        self.seen = {}
        self.failures = []
        self.focus_failures = []
        self.listing = "--list" in sys.argv

    def windows(self):
        return [w for w in children(self.app) if showing(w)]

    def new_window(self, before, what):
        paths = {w.path for w in before}
        return wait_for(what, lambda: next((w for w in self.windows() if w.path not in paths), None))

    def press(self, window, name, role=pyatspi.ROLE_PUSH_BUTTON, action=None):
        """Works a button as a screen reader does, through its action."""
        act(wait_for("'%s'" % name, lambda: find(window, name, role), 10), action)

    def open(self, window, name, what, role=pyatspi.ROLE_PUSH_BUTTON):
        before = self.windows()
        self.press(window, name, role)
        return self.new_window(before, what)

    def choose(self, item):
        """Clicks a row of a list or table, where a pointer would."""
        ext = item.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        subprocess.check_call(["xdotool", "mousemove", str(ext.x + ext.width // 2), str(ext.y + ext.height // 2),
                               "click", "1"])
        time.sleep(0.4)

    def check(self, window, label):
        found = focusables(window, [])
        for acc in found:
            key = (label.split(":")[0], acc.path)
            if key in self.seen:
                continue
            role = acc.getRole()
            good = bool(spoken_name(acc)) and role not in EMPTY_ROLES
            if self.listing:
                print("    %-18s %-40r %r" % (acc.getRoleName(), spoken_name(acc), acc.description))
            self.seen[key] = good
            if not good:
                self.failures.append("%s: no name or no role: %s %r (%s)" % (
                    label, acc.getRoleName(), acc.name, acc.description))
        named = sum(1 for acc in found if self.seen[(label.split(":")[0], acc.path)])
        print("%-28s %3d/%-3d named with a real role" % (label, named, len(found)))

    def expect_focus(self, window, label, roles, name=None):
        """Where typing lands when the window opens: a field of these roles (and name)."""
        roles = roles if isinstance(roles, tuple) else (roles,)
        try:
            acc = wait_for("the focus in " + label, lambda: focused(window), 3)
        except AssertionError:
            acc = None
        got = "%s %r" % (acc.getRoleName(), acc.name) if acc else "nothing"
        good = acc is not None and acc.getRole() in roles and (name is None or acc.name == name)
        print("%-28s focus on %s" % (label, got))
        if not good:
            self.focus_failures.append("%s opens with the focus on %s" % (label, got))

    def require(self, good, what):
        print("%-28s %s" % ("", ("ok: " if good else "FAILED: ") + what))
        if not good:
            self.failures.append(what)

    def close(self, window, button):
        self.press(window, button)
        wait_for("the window to close", lambda: window.path not in {w.path for w in self.windows()}, 10)

    def answer_question(self, button="Yes"):
        """Answers a message box, if one came."""
        time.sleep(0.5)
        for w in self.windows():
            if w.getRole() in (pyatspi.ROLE_ALERT, pyatspi.ROLE_DIALOG) and find(w, button):
                self.check(w, "Message box")
                self.press(w, button)
                return


def run(walk, focus_strict):
    host = wait_for("the task manager", lambda: next(
        (w for w in walk.windows() if "Task Manager" in (w.name or "")), None))
    tour = wait_for("the tour", lambda: next((w for w in walk.windows() if "Tour" in (w.name or "")), None))
    walk.check(tour, "Help (tour)")
    walk.close(tour, "Close")

    walk.check(host, "Host: Tasks")
    walk.press(host, "Task Catalog", pyatspi.ROLE_PAGE_TAB)
    walk.check(host, "Host: Task Catalog")
    walk.press(host, "Tasks", pyatspi.ROLE_PAGE_TAB)

    new = walk.open(host, "New Task", "New Task")
    time.sleep(0.8)  # the start timer fills the defaults
    walk.check(new, "New Task")
    walk.expect_focus(new, "New Task", pyatspi.ROLE_TEXT, "Task Description")
    flags = [a.name for a in everything(new, []) if a.name.startswith(("Ready: ", "Not ready"))]
    walk.require(len(flags) == 5, "the five Ready indicators say their state: %s" % flags)
    for button, label, close in (("New Project", "Add Project", "Close"), ("Add Keyword", "Add Keyword", "Done")):
        sub = walk.open(new, button, label)
        walk.check(sub, label)
        walk.expect_focus(sub, label, FIELDS)
        walk.close(sub, close)
    before = walk.windows()
    walk.press(new, "Printing", action="ShowMenu")
    act(wait_for("the Printing menu", lambda: find(walk.app, "Page Setup...", pyatspi.ROLE_MENU_ITEM), 10))
    setup = walk.new_window(before, "Page Setup")
    walk.check(setup, "Page Setup")
    walk.expect_focus(setup, "Page Setup", FIELDS)
    walk.close(setup, "Cancel")
    help_window = walk.open(new, "Help", "help")
    walk.check(help_window, "Help (New Task)")
    walk.close(help_window, "Close")
    walk.press(new, "Cancel")
    walk.answer_question("Yes")
    wait_for("New Task to close", lambda: new.path not in {w.path for w in walk.windows()}, 10)

    table = wait_for("the task list", lambda: find(host, "Tasks", pyatspi.ROLE_TABLE))
    walk.choose(wait_for("a task", lambda: find(table, "Plant the bulbs", pyatspi.ROLE_TABLE_CELL)))
    task = walk.open(host, "Open Task", "Existing Task")
    walk.check(task, "Existing Task")
    walk.expect_focus(task, "Existing Task", pyatspi.ROLE_TEXT, "Task Description")
    walk.press(task, "Task Schedule", pyatspi.ROLE_PAGE_TAB)
    time.sleep(0.5)
    walk.check(task, "Existing Task: schedule")
    done = [c for c in focusables(task, []) if c.getRole() == pyatspi.ROLE_TABLE_CELL and c.name == "Done?"]
    ticks = sorted(state(c).contains(pyatspi.STATE_CHECKED) for c in done)
    walk.require(ticks == [False, True], "the schedule's Done? cells are named and say whether they are ticked")
    walk.press(task, "Cancel")
    walk.answer_question("Yes")
    wait_for("Existing Task to close", lambda: task.path not in {w.path for w in walk.windows()}, 10)

    slots = wait_for("the appointments", lambda: find(host, "Appointments of the chosen task", pyatspi.ROLE_LIST))
    walk.choose(wait_for("an appointment", lambda: next(
        (c for c in children(slots) if "Plant the tulips" in (c.name or "")), None)))
    slot = walk.open(host, "Work Appointment", "Task Appointment")
    walk.check(slot, "Task Appointment")
    walk.expect_focus(slot, "Task Appointment", pyatspi.ROLE_TEXT, "Task Description")
    walk.press(slot, "Timer, stopped")
    running = wait_for("the stopwatch", lambda: find(slot, None, pyatspi.ROLE_PUSH_BUTTON) and next(
        (a for a in focusables(slot, []) if a.name.startswith("Timer") and a.name.endswith("running")), None), 5)
    walk.require(":" in running.name, "the running stopwatch reads its time: %r" % running.name)
    act(running)
    for tab in ("Notes", "About"):
        walk.press(slot, tab, pyatspi.ROLE_PAGE_TAB)
        time.sleep(0.5)
        walk.check(slot, "Task Appointment: " + tab)
    walk.press(slot, "Cancel")
    walk.answer_question("Yes")


def main():
    focus_strict = "--focus" in sys.argv
    args = [a for a in sys.argv[1:] if not a.startswith("--")]
    if len(args) != 2:
        print(__doc__)
        return 2
    quorvel, script = (os.path.abspath(a) for a in args)
    work = tempfile.mkdtemp(prefix="qv-atspi-")
    home = os.path.join(work, "home")
    quiet = dict(stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    subprocess.check_call([quorvel, "--home", home, "--install-store"], **quiet)
    seed = os.path.join(work, "seed.qvs")
    with open(seed, "w") as f:
        f.write("home %s\n%s" % (home, SEED))
    subprocess.check_call([script, seed], **quiet)

    read, write = os.pipe()
    xvfb = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1600x1000x24", "-nolisten", "tcp"],
                            pass_fds=(write,), **quiet)
    os.close(write)
    display = ":" + os.read(read, 16).decode().strip()
    env = dict(os.environ, DISPLAY=display, QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
               QT_ACCESSIBILITY="1", XDG_RUNTIME_DIR=work)
    os.environ["DISPLAY"] = display
    program = subprocess.Popen([quorvel, "--home", home], env=env, **quiet)
    walk = None
    try:
        desktop = pyatspi.Registry.getDesktop(0)
        app = wait_for("quorvel on the accessibility bus",
                       lambda: next((a for a in children(desktop) if a.name == "quorvel"), None), 30)
        walk = Walk(app)
        run(walk, focus_strict)
    finally:
        program.terminate()
        try:
            program.wait(10)
        except subprocess.TimeoutExpired:
            program.kill()
        xvfb.terminate()
        xvfb.wait()
        shutil.rmtree(work, ignore_errors=True)

    named = sum(1 for good in walk.seen.values() if good)
    print("\n%d/%d focusable elements have a name and a real role" % (named, len(walk.seen)))
    for failure in walk.failures:
        print("  failed: " + failure)
    for failure in walk.focus_failures:
        print("  focus: " + failure)
    bad = bool(walk.failures) or (focus_strict and bool(walk.focus_failures))
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
