"""What the tests with other people's programs share: GeoPackages of the samples, and a server of databases."""

import contextlib
import csv
import glob
import os
import pathlib
import re
import shutil
import subprocess
import tempfile

root = pathlib.Path(__file__).resolve().parents[2]
samples = root / "samples"
program = pathlib.Path(os.environ.get("KORVANDE_CLI", root / "build/debug/cli/korvande-cli"))
layers = ("punten", "lijnen", "teksten")


def run(*words, **more):
    """Runs a program that must succeed; what it printed."""
    result = subprocess.run([str(word) for word in words], capture_output=True, text=True, check=False, **more)
    if result.returncode != 0:
        raise AssertionError(f"{words} ended with {result.returncode}:\n{result.stdout}{result.stderr}")
    return result.stdout


def make_geopackage(sample, target, *options):
    """Puts a sample into a GeoPackage; how many points, line strings and texts the program says that it holds."""
    words = [program, "geopackage", "--project", samples / "voorbeeld.nst", *options, samples / sample, target]
    result = subprocess.run([str(word) for word in words], capture_output=True, text=True, check=False)
    # Some of the samples are damaged on purpose.
    if result.returncode not in (0, 1):
        raise AssertionError(result.stderr)
    counts = re.search(r"(\d+) punten, (\d+) lijnstrings, (\d+) teksten", result.stdout.splitlines()[-1])
    return dict(zip(layers, map(int, counts.groups())))


def summary(source, layer):
    """How many objects GDAL finds in a layer, and what it covers."""
    told = run("ogrinfo", "-ro", "-so", source, layer)
    count = int(re.search(r"Feature Count: (\d+)", told)[1])
    number = r"(-?[\d.]+)"
    extent = re.search(rf"Extent: \({number}, {number}\) - \({number}, {number}\)", told)
    return count, [float(side) for side in extent.groups()] if extent else None


def values(source, sql):
    """The values that a query gives, row by row, as texts."""
    text = run("ogr2ogr", "-f", "CSV", "/vsistdout/", source, "-dialect", "sqlite", "-sql", sql)
    return list(csv.reader(text.splitlines()))[1:]


@contextlib.contextmanager
def folder():
    """A temporary folder that other users may look into."""
    with tempfile.TemporaryDirectory() as name:
        os.chmod(name, 0o755)
        yield pathlib.Path(name)


@contextlib.contextmanager
def database_server():
    """A server of its own with an empty database "archief" that knows geometries; the environment to reach it with."""
    binaries = pathlib.Path(sorted(glob.glob("/usr/lib/postgresql/*/bin"))[-1])
    with folder() as place:
        # It refuses to run as root.
        as_server = []
        if os.geteuid() == 0:
            as_server = ["runuser", "-u", "postgres", "--"]
            shutil.chown(place, "postgres")
        data = place / "data"
        run(*as_server, binaries / "initdb", "-D", data, "-A", "trust", "-U", "gis", "-E", "UTF8", cwd=place)
        options = f"-k {place} -c listen_addresses= -c fsync=off"
        run(*as_server, binaries / "pg_ctl", "-w", "-D", data, "-l", place / "log", "-o", options, "start", cwd=place)
        try:
            reach = {**os.environ, "PGHOST": str(place), "PGUSER": "gis"}
            run("createdb", "archief", env=reach)
            run("psql", "-q", "-d", "archief", "-c", "CREATE EXTENSION postgis", env=reach)
            yield reach
        finally:
            run(*as_server, binaries / "pg_ctl", "-w", "-m", "fast", "-D", data, "stop", cwd=place)
