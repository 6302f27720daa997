"""A copy of the sources with a build of its own, in which one mutant at a time is made and tested."""

import filecmp
import io
import json
import os
import pathlib
import shutil
import signal
import subprocess
import tarfile
import tempfile
import time

from selection import WHOLE_PROGRAM

# A mutant may signal any process, fill any disk or memory and search any network. So it gets none but its own.
# It ends with us.
_ISOLATED = ['setpriv', '--pdeathsig', 'KILL',
             'unshare', '--mount', '--pid', '--net', '--ipc', '--fork', '--kill-child', '--mount-proc']
_PREPARE = 'mount -t tmpfs -o size=1g tmpfs /tmp && ip link set lo up && "$@"; exit $?'
_MEMORY = 12 << 30  # Bytes of address space of one process; more than a producer's host allows itself.
_SKIPPED = 77


class Test:
    """One test program as ctest would start it."""

    def __init__(self, entry):
        properties = {item['name']: item['value'] for item in entry.get('properties', [])}
        self.name = entry['name']
        self.command = entry.get('command', [])
        self.folder = properties['WORKING_DIRECTORY']
        self.environment = dict(item.split('=', 1) for item in properties.get('ENVIRONMENT', []))
        self.prepares = bool(properties.get('FIXTURES_SETUP'))
        self.seconds = properties.get('TIMEOUT', 120.0)  # Until it has been measured.


class WorkCopy:
    """Sources and build below one folder; the working tree is not touched."""

    def __init__(self, folder, compiler_cache):
        self.source = folder / 'source'
        self.build = folder / 'build'
        self._environment = {
            **os.environ, 'GTEST_FAIL_FAST': '1', 'GTEST_BRIEF': '1', 'CCACHE_DIR': str(compiler_cache),
            'CCACHE_BASEDIR': str(folder), 'CCACHE_DEPEND': '1'}

    def prepare(self, root, commit):
        """Takes over the commit's sources; what did not change keeps its time, and so its object files."""
        self.source.mkdir(parents=True, exist_ok=True)
        archive = subprocess.run(['git', 'archive', commit], cwd=root, stdout=subprocess.PIPE, check=True).stdout
        with tempfile.TemporaryDirectory(dir=self.source.parent) as folder:
            tarfile.open(fileobj=io.BytesIO(archive)).extractall(folder)
            _mirror(pathlib.Path(folder), self.source)
        linker = '-fuse-ld=lld' if shutil.which('ld.lld') else ''
        options = [f'-DCMAKE_{kind}_LINKER_FLAGS={linker}' for kind in ('EXE', 'SHARED', 'MODULE')]
        if shutil.which('ccache'):  # For going back to the original; of the mutants nothing is kept.
            options.append('-DCMAKE_CXX_COMPILER_LAUNCHER=ccache')
        # Without warnings: that a mutant leaves a variable unused is not what should catch it. The assertions
        # stand in for AddressSanitizer, under which the tests run as well.
        self._run(['cmake', '-G', 'Ninja', '-S', self.source, '-B', self.build, '-DCMAKE_BUILD_TYPE=Debug',
                   '-DCMAKE_CXX_FLAGS_DEBUG=-O0 -w -D_GLIBCXX_ASSERTIONS', *options])
        self._run(['ninja', '-C', self.build])
        self._environment['CCACHE_READONLY'] = '1'

    def _run(self, command):
        done = subprocess.run(['nice', '-n', '10', *command], env=self._environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        if done.returncode != 0:
            raise SystemExit(f'{done.stdout[-4000:]}\nThe unchanged sources do not build.')

    def write(self, file, text):
        (self.source / file).write_text(text)

    def builds(self, test_folder):
        """Brings what the tests of a folder run up to date."""
        targets = [f'{test_folder}/all']
        if test_folder in WHOLE_PROGRAM:
            targets += ['installation', 'tests/road/all']  # Of that, what reads the windows.
        command = ['nice', '-n', '10', 'ninja', '-C', self.build, '-j', '1', *targets]
        return subprocess.run(command, env=self._environment, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, check=False).returncode == 0

    def tests(self, test_folder):
        """Empty for a folder that has none."""
        command = ['ctest', '--test-dir', self.build / test_folder, '--show-only=json-v1']
        shown = subprocess.run(command, stdout=subprocess.PIPE, check=True).stdout
        return [Test(entry) for entry in json.loads(shown)['tests']]

    def passes(self, test):
        """Whether a test passes; None if it ran out of time. What it leaves behind is ended."""
        command = ['nice', '-n', '10', 'prlimit', f'--as={_MEMORY}', *_ISOLATED]
        command += ['--map-root-user'] if os.geteuid() != 0 else []
        process = subprocess.Popen(
            [*command, 'sh', '-c', _PREPARE, 'sh', *test.command], cwd=test.folder, start_new_session=True,
            env={**self._environment, **test.environment}, stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            return process.wait(test.seconds) in (0, _SKIPPED)
        except subprocess.TimeoutExpired:
            return None
        finally:
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()

    def measure(self, test):
        """Runs a test on the unchanged sources; whether it passes, and how long it then may take."""
        for _ in range(2):
            start = time.monotonic()
            if self.passes(test):
                test.seconds = 3 * (time.monotonic() - start) + 20  # Other work may slow the machine down.
                return True
        return False


def _mirror(new, old):
    """Makes the old folder equal to the new one and leaves equal files alone."""
    old.mkdir(exist_ok=True)
    for path in [path for path in old.iterdir() if not (new / path.name).exists()]:
        shutil.rmtree(path) if path.is_dir() and not path.is_symlink() else path.unlink()
    for path in new.iterdir():
        target = old / path.name
        if path.is_dir() and not path.is_symlink():
            _mirror(path, target)
        elif not target.exists() or not filecmp.cmp(path, target, shallow=False):
            target.unlink(missing_ok=True)
            shutil.move(path, target)
            os.utime(target, follow_symlinks=False)
