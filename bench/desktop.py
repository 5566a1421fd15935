"""See bench/desktop."""
import pathlib
import statistics
import subprocess
import sys
import time

from machine import BUILD, Game, Machine, end

ROUNDS = 5
REST = 10  # seconds
PROGRAMS = [sys.argv[1] if len(sys.argv) > 1 else str(BUILD / "zelvo"), "/usr/games/sgt-mines",
            "/usr/games/gnome-mines"]


def first_window(machine, program):
    """Starts a program; gives back its process and the seconds until its first window was up."""
    spy = subprocess.Popen(["xprop", "-root", "-spy", "_NET_CLIENT_LIST"], env=machine.environment,
                           stdout=subprocess.PIPE, text=True)
    while "0x" in spy.stdout.readline():
        pass  # the last program's window goes
    before = time.monotonic()
    process = machine.start(program)
    while "0x" not in spy.stdout.readline():
        pass
    opened = time.monotonic() - before
    end(spy)
    return process, opened


def kib(process, file, name):
    for line in pathlib.Path(f"/proc/{process.pid}/{file}").read_text().splitlines():
        if line.startswith(name + ":"):
            return int(line.split()[1])
    raise KeyError(name)


def measure(machine, program, rests):
    process, opened = first_window(machine, program)
    time.sleep(2)
    game = Game(machine, process)
    before = game.processor_ticks()
    time.sleep(REST if rests else 0)
    # Pages that others use as well count in parts, so the sum of them alone says what is its own.
    row = (opened * 1000, kib(process, "smaps_rollup", "Pss"),
           kib(process, "smaps_rollup", "Private_Dirty"), kib(process, "status", "VmHWM"),
           10 * (game.processor_ticks() - before) if rests else None)
    end(process)
    return row


def compare(name, **options):
    print(f"\n{name}: medians of {ROUNDS}\n{'program':14}{'opens ms':>10}{'of these':>26}"
          f"{'rest KiB':>10}{'own KiB':>9}{'peak KiB':>10}{'ms/10 s':>9}")
    rows = {program: [] for program in PROGRAMS}
    with Machine(bus=True, **options) as machine:
        for program in PROGRAMS:
            measure(machine, program, False)  # warms the disk cache
        for number in range(ROUNDS):
            for program in PROGRAMS:
                rows[program].append(measure(machine, program, number == 0))
    for program in PROGRAMS:
        columns = list(zip(*rows[program]))
        opens = sorted(round(value) for value in columns[0])
        middle = [statistics.median(column) for column in columns[:4]]
        print(f"{pathlib.Path(program).name:14}{middle[0]:10.0f}{' '.join(map(str, opens)):>26}"
              f"{middle[1]:10.0f}{middle[2]:9.0f}{middle[3]:10.0f}{columns[4][0]:9}", flush=True)


def blink():
    """What a turn of the computer costs: blinks of about a second each."""
    with Machine(bus=True) as machine:
        game = Game(machine, machine.start(PROGRAMS[0]))
        board = game.open_board()
        game.click("GFM.CMDGO", board)
        time.sleep(0.5)
        before = game.processor_ticks()
        time.sleep(2)
        print(f"\nzelvo in a blink: {5 * (game.processor_ticks() - before)} ms of processor a second")
        print(f"zelvo on the board: {kib(game.process, 'status', 'VmHWM')} KiB at the peak")


compare("without a sound server")
compare("with a sound server", sound=True)
blink()
