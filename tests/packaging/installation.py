"""A finished build, what it installs, and the programs of README.md built on that as a user builds them."""
import os
import re
import shlex
import subprocess

LAST_LINE = '-32768  0x2A  -32256'  # of what the first program prints


def run(*command, **options):
    return subprocess.run(command, capture_output=True, text=True, check=False, **options)


def checked(*command, **options):
    result = run(*command, **options)
    if result.returncode != 0:
        raise AssertionError(f'{shlex.join(command)}: status {result.returncode}\n{result.stdout}{result.stderr}')
    return result.stdout


def word_size(path):
    """Of an ELF file, in bits."""
    with open(path, 'rb') as file:
        start = file.read(5)
    assert start[:4] == b'\x7fELF', path
    return {1: 32, 2: 64}[start[4]]


class Build:
    def __init__(self, folder):
        self.folder = os.path.abspath(folder)
        with open(os.path.join(folder, 'CMakeCache.txt'), encoding='utf-8') as file:
            cache = dict(re.findall(r'^(\w+):\w+=(.*)$', file.read(), re.MULTILINE))
        self.cmake = cache['CMAKE_COMMAND']
        self.compiler = cache['CMAKE_C_COMPILER']
        self.flags = cache.get('CMAKE_C_FLAGS', '')
        self.version = cache['CMAKE_PROJECT_VERSION']
        self.library_folder = cache['CMAKE_INSTALL_LIBDIR']
        self.emulator = [part for part in cache.get('CMAKE_CROSSCOMPILING_EMULATOR', '').split(';') if part]
        self.word_size = word_size(os.path.join(folder, 'liborbs90lgc.so'))
        with open(os.path.join(cache['CMAKE_HOME_DIRECTORY'], 'README.md'), encoding='utf-8') as file:
            self.readme = file.read()

    def library(self, prefix):
        return os.path.join(prefix, self.library_folder, 'liborbs90lgc.so')

    def install(self, prefix, staging=''):
        return run(self.cmake, '--install', self.folder, '--prefix', prefix, env=dict(os.environ, DESTDIR=staging))

    def pkg_config(self, prefix):
        """The words for the compiler, from this prefix and no other."""
        places = os.path.join(prefix, self.library_folder, 'pkgconfig')
        environment = dict(os.environ, PKG_CONFIG_LIBDIR=places)
        environment.pop('PKG_CONFIG_PATH', None)
        return checked('pkg-config', '--cflags', '--libs', 'orbs90lgc', env=environment).split()

    def write_from_readme(self, language, path):
        with open(path, 'w', encoding='utf-8') as file:
            file.write(re.search(rf'^```{language}\n(.*?)^```$', self.readme, re.MULTILINE | re.DOTALL)[1])

    def first_program_with_pkg_config(self, prefix, folder):
        """What the program prints."""
        source, program = os.path.join(folder, 'first.c'), os.path.join(folder, 'first')
        self.write_from_readme('c', source)
        run_path = '-Wl,-rpath,' + os.path.join(prefix, self.library_folder)
        checked(self.compiler, *shlex.split(self.flags), '-o', program, source, *self.pkg_config(prefix), run_path)
        return checked(*self.emulator, program)

    def configure_with_cmake(self, prefix, folder, *options):
        self.write_from_readme('c', os.path.join(folder, 'first.c'))
        self.write_from_readme('cmake', os.path.join(folder, 'CMakeLists.txt'))
        return run(self.cmake, '-G', 'Ninja', '-S', folder, '-B', os.path.join(folder, 'out'),
                   f'-DCMAKE_PREFIX_PATH={prefix}', f'-DCMAKE_C_COMPILER={self.compiler}',
                   f'-DCMAKE_C_FLAGS={self.flags}', *options)

    def first_program_with_cmake(self, prefix, folder):
        """What the program prints."""
        # A compiler with -m32 does not tell CMake the name of its multi-arch folder.
        result = self.configure_with_cmake(
            prefix, folder, *(['-DCMAKE_LIBRARY_ARCHITECTURE=i386-linux-gnu'] if self.word_size == 32 else []))
        if result.returncode != 0:
            raise AssertionError(result.stdout + result.stderr)
        checked(self.cmake, '--build', os.path.join(folder, 'out'))
        return checked(*self.emulator, os.path.join(folder, 'out', 'first'))
