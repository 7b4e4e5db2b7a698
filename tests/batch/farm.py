"""What the tests of many translations share: an archive of drawings, the documented lines, and servers of their own."""

import contextlib
import os
import pathlib
import re
import shutil
import socket
import subprocess
import tempfile
import time

root = pathlib.Path(__file__).resolve().parents[2]
samples = root / "samples"
program = pathlib.Path(os.environ.get("KORVANDE_CLI", root / "build/debug/cli/korvande-cli"))


def documented(mark):
    """The block of code behind a mark on the page."""
    page = (root / "docs/batch.md").read_text(encoding="utf-8")
    block = re.search(rf"<!-- {re.escape(mark)} -->\n((?:    .*\n)+)", page)
    if not block:
        raise AssertionError(f"docs/batch.md has no block '{mark}'")
    return re.sub(r"(?m)^    ", "", block[1])


def run(*words, expected=(0,), **more):
    """Runs a program that must end with one of these statuses; what became of it."""
    result = subprocess.run([str(word) for word in words], capture_output=True, text=True, check=False, **more)
    if result.returncode not in expected:
        raise AssertionError(f"{words} ended with {result.returncode}:\n{result.stdout}{result.stderr}")
    return result


@contextlib.contextmanager
def archive(count):
    """A folder with an archive of so many drawings, the sixth of every fifty of which is none, and a control table; and in its
    folder "bin" the program, under its name."""
    with tempfile.TemporaryDirectory() as name:
        place = pathlib.Path(name)
        (place / "archief").mkdir()
        (place / "bin").mkdir()
        (place / "bin/korvande-cli").symlink_to(program)
        shutil.copy(samples / "voorbeeld.nst", place / "gemeente.nst")
        drawing = (samples / "kruispunt.sfn").read_bytes()
        for sheet in range(count):
            is_broken = sheet % 50 == 5
            (place / f"archief/blad {sheet:03} ë.sfn").write_bytes(b"geen tekening\r\n" if is_broken else drawing)
        yield place


def environment(place):
    """The surroundings in which the program is found by its name, and dates are the same."""
    return {**os.environ, "PATH": f"{place / 'bin'}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8"}


def translated_one_by_one(place):
    """What a single program makes of the archive: the bytes of each output."""
    target = place / "een voor een"
    target.mkdir()
    names = sorted(str(name) for name in (place / "archief").glob("*.sfn"))
    words = ["--stil", "--taken", "1", "--modus", "nen1878-idex", "--project", place / "gemeente.nst"]
    run(program, "vertaal", *words, "--uitvoermap", target, *names, expected=(0, 1))
    made = outputs(target)
    if not made:
        raise AssertionError("the program translates nothing")
    return made


def outputs(folder):
    """The bytes of the outputs in a folder, by their names."""
    return {name.name: name.read_bytes() for name in folder.glob("*.idx")}


def same(made, expected):
    """Whether two folders hold the same outputs; which are not is printed."""
    different = sorted(name for name in {*made, *expected} if made.get(name) != expected.get(name))
    if different:
        print("not the same:", *different)
    return not different


def wait_until(condition, seconds=60):
    """Waits for a condition, and fails when it does not come."""
    end = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > end:
            raise AssertionError("it did not happen")
        time.sleep(0.1)


@contextlib.contextmanager
def ssh_workers(place):
    """Two workers that are reached over ssh, at a server of its own on this machine; how ssh is called for them."""
    keys = place / "ssh"
    keys.mkdir(mode=0o700)
    for name in ("server", "gebruiker"):
        run("ssh-keygen", "-q", "-t", "ed25519", "-N", "", "-f", keys / name)
    # A login of this user, that finds the program by its name.
    port = free_port()
    (keys / "server.conf").write_text(
        f"Port {port}\nListenAddress 127.0.0.1\nHostKey {keys}/server\nPidFile {keys}/pid\nUsePAM no\nUseDNS no\n"
        f"StrictModes no\nAuthorizedKeysFile {keys}/gebruiker.pub\n"
        f"SetEnv PATH={environment(place)['PATH']} LC_ALL=C.UTF-8\n"
    )
    (keys / "client.conf").write_text(
        f"Host werker*\nHostName 127.0.0.1\nPort {port}\nIdentityFile {keys}/gebruiker\nLogLevel ERROR\n"
        f"UserKnownHostsFile {keys}/bekend\nStrictHostKeyChecking accept-new\n"
    )
    if os.geteuid() == 0:
        pathlib.Path("/run/sshd").mkdir(exist_ok=True)
    server = subprocess.Popen(["/usr/sbin/sshd", "-D", "-f", keys / "server.conf", "-E", keys / "log"])
    try:
        call = f"ssh -F {keys}/client.conf"
        wait_until(lambda: subprocess.run([*call.split(), "werker1", "true"], capture_output=True, check=False).returncode == 0)
        yield call
    finally:
        server.terminate()
        server.wait()


def free_port():
    """A port that nobody listens at."""
    with socket.socket() as found:
        found.bind(("127.0.0.1", 0))
        return found.getsockname()[1]


@contextlib.contextmanager
def cluster(place):
    """A cluster of this machine alone, with two processors; the environment to reach it with."""
    home = place / "slurm"
    (home / "state").mkdir(parents=True)
    (home / "spool").mkdir()
    (home / "key").write_bytes(os.urandom(1024))
    (home / "key").chmod(0o400)
    name = run("hostname", "-s").stdout.strip()
    user = run("id", "-un").stdout.strip()
    (home / "slurm.conf").write_text(
        f"ClusterName=proef\nSlurmctldHost={name}(127.0.0.1)\nSlurmUser={user}\nSlurmdUser={user}\n"
        f"AuthType=auth/munge\nAuthInfo=socket={home}/munge\nCredType=cred/munge\nMpiDefault=none\n"
        f"ProctrackType=proctrack/linuxproc\nTaskPlugin=task/none\nSwitchType=switch/none\n"
        f"SlurmctldPort={free_port()}\nSlurmdPort={free_port()}\nSrunPortRange=0-0\n"
        f"SlurmctldPidFile={home}/ctld.pid\nSlurmdPidFile={home}/slurmd.pid\n"
        f"SlurmdSpoolDir={home}/spool\nStateSaveLocation={home}/state\n"
        f"SelectType=select/cons_tres\nSelectTypeParameters=CR_CPU\nSchedulerType=sched/builtin\n"
        f"AccountingStorageType=accounting_storage/none\nJobAcctGatherType=jobacct_gather/none\n"
        f"NodeName={name} NodeAddr=127.0.0.1 CPUs=2 State=UNKNOWN\n"
        f"PartitionName=kaart Nodes={name} Default=YES MaxTime=INFINITE State=UP\n"
    )
    reach = {**environment(place), "SLURM_CONF": str(home / "slurm.conf")}
    servers = []

    def serve(*words):
        with open(home / f"{pathlib.Path(words[0]).name}.out", "wb") as log:
            servers.append(subprocess.Popen([str(word) for word in words], env=reach, stdout=log, stderr=log))

    try:
        serve("/usr/sbin/munged", "--foreground", "--force", f"--key-file={home}/key", f"--socket={home}/munge",
              f"--pid-file={home}/munge.pid", f"--log-file={home}/munge.log", f"--seed-file={home}/seed")
        wait_until((home / "munge").exists)
        serve("/usr/sbin/slurmctld", "-D")
        serve("/usr/sbin/slurmd", "-D", "-N", name)
        wait_until(lambda: "idle" in subprocess.run(["sinfo", "-h", "-o", "%T"], env=reach, capture_output=True,
                                                    text=True, check=False).stdout)
        yield reach
    finally:
        for server in reversed(servers):
            server.terminate()
            server.wait()
