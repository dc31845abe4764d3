#!/usr/bin/python3
"""Checks the demo as assistive technology sees it, through the AT-SPI bus.

For each page given, starts the demo on that page and checks:
  - names and roles: every control that takes focus and is shown has a fitting role
    (not a bare panel or filler) and a non-empty accessible name;
  - the keyboard walk: Tab moves focus on every press, reaches every such control and
    comes back around to where it started; Shift+Tab walks the same ring backwards.

Runs inside a session bus with the accessibility bus started and an X server (see
scripts/check-accessibility). Prints one line per finding and a closing line
"N passed, N failed"; exits non-zero when anything failed.
"""

import os
import subprocess
import sys
import time

import pyatspi

# Roles that a control taking focus may have: each tells a screen reader what it is.
FITTING_ROLES = {
    pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_CHECK_BOX,
    pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_TEXT, pyatspi.ROLE_ENTRY,
    pyatspi.ROLE_PASSWORD_TEXT, pyatspi.ROLE_SPIN_BUTTON, pyatspi.ROLE_SLIDER, pyatspi.ROLE_DIAL,
    pyatspi.ROLE_PAGE_TAB_LIST, pyatspi.ROLE_PAGE_TAB, pyatspi.ROLE_LIST, pyatspi.ROLE_LIST_BOX,
    pyatspi.ROLE_TABLE, pyatspi.ROLE_TREE, pyatspi.ROLE_TREE_TABLE, pyatspi.ROLE_MENU_ITEM,
    pyatspi.ROLE_MENU, pyatspi.ROLE_MENU_BAR, pyatspi.ROLE_TOOL_BAR, pyatspi.ROLE_SCROLL_BAR,
    pyatspi.ROLE_PROGRESS_BAR, pyatspi.ROLE_DOCUMENT_TEXT, pyatspi.ROLE_DOCUMENT_FRAME,
    pyatspi.ROLE_LINK, pyatspi.ROLE_SPLIT_PANE, pyatspi.ROLE_CANVAS, pyatspi.ROLE_IMAGE,
    pyatspi.ROLE_CHART, pyatspi.ROLE_LEVEL_BAR,
}
# Children of these are reached with the arrow keys inside their container, not by Tab.
ARROW_CONTAINERS = {
    pyatspi.ROLE_LIST, pyatspi.ROLE_LIST_BOX, pyatspi.ROLE_TABLE, pyatspi.ROLE_TREE,
    pyatspi.ROLE_TREE_TABLE, pyatspi.ROLE_PAGE_TAB_LIST, pyatspi.ROLE_MENU, pyatspi.ROLE_MENU_BAR,
    pyatspi.ROLE_COMBO_BOX,
}
# Roles whose name may be empty: a text field or list is named by its label, which
# Qt reports as the name when the label is its buddy; scroll bars and split panes need none.
NAME_OPTIONAL = {pyatspi.ROLE_SCROLL_BAR, pyatspi.ROLE_SPLIT_PANE}

MAX_TABS = 160


def application(name, timeout=20.0):
    deadline = time.monotonic() + timeout
    while time.monotonic() < deadline:
        desktop = pyatspi.Registry.getDesktop(0)
        for i in range(desktop.childCount):
            app = desktop.getChildAtIndex(i)
            if app is not None and app.name == name:
                return app
        time.sleep(0.25)
    return None


def describe(acc):
    path = []
    node = acc
    while node is not None and node.getRole() != pyatspi.ROLE_APPLICATION and len(path) < 4:
        path.append(f"{node.getRoleName()} '{node.name}'")
        node = node.parent
    return " < ".join(path)


def controls(app):
    """Shown, enabled controls that take focus by Tab, in tree order."""
    found = []

    def walk(acc, parent_role, in_dialog):
        try:
            state = acc.getState()
            role = acc.getRole()
        except Exception:
            return
        if not state.contains(pyatspi.STATE_SHOWING):
            return
        if (state.contains(pyatspi.STATE_FOCUSABLE) and state.contains(pyatspi.STATE_ENABLED)
                and parent_role not in ARROW_CONTAINERS):
            found.append(acc)
        for i in range(acc.childCount):
            child = acc.getChildAtIndex(i)
            if child is not None:
                walk(child, role, in_dialog)

    # The window that holds the keyboard focus: a splash or a background is not the page.
    window = focused(app)
    while window is not None and window.parent is not None and window.parent.getRole() != pyatspi.ROLE_APPLICATION:
        window = window.parent
    if window is not None:
        walk(window, window.getRole(), False)
    return found


def focused(app):
    """The control holding the keyboard focus. Qt leaves the focused state on the current
    item of a list or tab bar, so an item counts only when nothing else is focused, and
    then as its container."""
    found = []

    def walk(acc):
        try:
            state = acc.getState()
        except Exception:
            return
        if not state.contains(pyatspi.STATE_SHOWING):
            return
        if state.contains(pyatspi.STATE_FOCUSED):
            found.append(acc)
        for i in range(acc.childCount):
            child = acc.getChildAtIndex(i)
            if child is not None:
                walk(child)

    walk(app)
    items = [acc for acc in found if acc.parent is not None and acc.parent.getRole() in ARROW_CONTAINERS]
    controls_ = [acc for acc in found if acc not in items and not any(acc == item.parent for item in items)]
    if controls_:
        return controls_[-1]
    return items[0].parent if items else None


def key(name):
    subprocess.run(["xdotool", "key", "--clearmodifiers", name], check=False)
    time.sleep(0.12)


def walk_ring(app, forward):
    """The focus stops from one press to the next until the start comes round again."""
    start = focused(app)
    stops = [start]
    trapped = None
    for _ in range(MAX_TABS):
        key("Tab" if forward else "shift+Tab")
        now = focused(app)
        if now is None:
            continue
        if now == stops[-1] and len(stops) > 1:
            trapped = now
            break
        if now == start:
            return stops, None, True
        stops.append(now)
    return stops, trapped, False


def check_page(page, demo, language):
    findings = []
    env = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
    proc = subprocess.Popen([demo, "--page", page, "--lang", language], env=env,
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        app = application("orv-demo")
        if app is None:
            return [f"{page}: the demo did not appear on the accessibility bus"]
        time.sleep(2.0)  # let the page settle (splash gone, tab shown)
        stops = controls(app)
        if not stops:
            return [f"{page}: no control takes focus"]
        for acc in stops:
            role = acc.getRole()
            if role not in FITTING_ROLES:
                findings.append(f"{page}: role '{acc.getRoleName()}' does not say what this control is: "
                                f"{describe(acc)}")
            elif role not in NAME_OPTIONAL and not (acc.name or "").strip():
                findings.append(f"{page}: no accessible name: {describe(acc)}")

        # Keystrokes go to the window that has the X input focus; a window that keeps it
        # from the main window (a background, a leftover splash) is a finding of its own.
        first = focused(app)
        key("Tab")
        if focused(app) == first and len(stops) > 1:
            window = subprocess.run(["xdotool", "getwindowfocus", "getwindowname"], capture_output=True,
                                    text=True).stdout.strip()
            findings.append(f"{page}: Tab does not reach the main window; the keyboard focus is in "
                            f"window '{window}'")
            subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(proc.pid), "--name",
                            "^orv-demo$", "windowactivate", "--sync"], check=False,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            time.sleep(0.5)
        ring, trapped, closed = walk_ring(app, True)
        if trapped is not None:
            findings.append(f"{page}: Tab is trapped at {describe(trapped)}")
        elif not closed:
            findings.append(f"{page}: Tab did not come back around within {MAX_TABS} presses")
        reached = set(ring)
        for acc in stops:
            if acc not in reached and acc.getRole() != pyatspi.ROLE_SCROLL_BAR:
                findings.append(f"{page}: Tab never reaches {describe(acc)}")
        back, trapped, closed = walk_ring(app, False)
        if trapped is not None:
            findings.append(f"{page}: Shift+Tab is trapped at {describe(trapped)}")
        elif not closed:
            findings.append(f"{page}: Shift+Tab did not come back around within {MAX_TABS} presses")
        elif closed and ring and set(back) != reached:
            findings.append(f"{page}: Shift+Tab walks a different ring than Tab")
    finally:
        proc.terminate()
        try:
            proc.wait(timeout=10)
        except subprocess.TimeoutExpired:
            proc.kill()
    return findings


def main():
    demo, language, pages = sys.argv[1], sys.argv[2], sys.argv[3:]
    passed = failed = 0
    for page in pages:
        findings = check_page(page, demo, language)
        if findings:
            failed += 1
            for line in findings:
                print("FAIL", line)
        else:
            passed += 1
            print("PASS", page)
        sys.stdout.flush()
    print(f"{passed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
