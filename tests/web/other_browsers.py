"""Browsers that are only asked to open a page, which then posts what came of it to the script."""

import contextlib
import glob
import json
import os
import shutil
import signal
import socket
import subprocess
import tempfile
import time
import urllib.error
import urllib.request

PATIENCE = 120  # seconds without a word from the page; the machine may be busy


class MissingBrowser(Exception):
    pass


@contextlib.contextmanager
def started(command, **options):
    """A program that ends, with all that it has started, when it is no longer needed."""
    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                               start_new_session=True, **options)
    try:
        yield process
    finally:
        with contextlib.suppress(ProcessLookupError):
            os.killpg(process.pid, signal.SIGKILL)
        process.wait()


@contextlib.contextmanager
def firefox(address):
    program = shutil.which('firefox-esr') or shutil.which('firefox')
    if program is None:
        raise MissingBrowser('there is no firefox-esr (tools/packages web-browsers installs it)')
    profile = tempfile.mkdtemp(prefix='veyrand-firefox-')
    with open(os.path.join(profile, 'user.js'), 'w', encoding='utf-8') as file:
        file.write('user_pref("browser.shell.checkDefaultBrowser", false);\n'
                   'user_pref("datareporting.policy.dataSubmissionEnabled", false);\n'
                   'user_pref("app.update.enabled", false);\n')
    try:
        with started([program, '--headless', '--no-remote', '--profile', profile, address],
                     env=dict(os.environ, HOME=profile)) as process:
            yield process
    finally:
        shutil.rmtree(profile, ignore_errors=True)


def asked(address, body=None):
    request = urllib.request.Request(address, None if body is None else json.dumps(body).encode(),
                                     {'Content-Type': 'application/json'})
    with urllib.request.urlopen(request, timeout=60) as answer:
        return json.load(answer)['value']


@contextlib.contextmanager
def display():
    """An X server of our own; it looks for a free number itself, as others may be looking too."""
    told, tell = os.pipe()
    with started(['Xvfb', '-displayfd', str(tell), '-screen', '0', '1440x900x24', '-nolisten', 'tcp'], pass_fds=(tell,)):
        os.close(tell)
        with os.fdopen(told) as answer:
            number = answer.readline().strip()
        if not number:
            raise OSError('Xvfb does not start')
        yield ':' + number


def free_port():
    with socket.socket() as probe:
        probe.bind(('127.0.0.1', 0))
        return probe.getsockname()[1]


@contextlib.contextmanager
def webkit(address):
    driver = shutil.which('WebKitWebDriver')
    browsers = glob.glob('/usr/lib/*/webkit2gtk-4.*/MiniBrowser')
    if driver is None or not browsers:
        raise MissingBrowser('there is no WebKitGTK (tools/packages web-browsers installs webkit2gtk-driver)')
    port = free_port()
    with display() as screen, \
            started([driver, '--port=%d' % port], env=dict(os.environ, DISPLAY=screen, GDK_BACKEND='x11',
                                                           LIBGL_ALWAYS_SOFTWARE='1',
                                                           WEBKIT_DISABLE_COMPOSITING_MODE='1')) as process:
        service = 'http://127.0.0.1:%d' % port
        wish = {'capabilities': {'alwaysMatch': {'webkitgtk:browserOptions': {
            'binary': sorted(browsers)[-1], 'args': ['--automation']}}}}
        end = time.monotonic() + 60
        while True:
            try:
                session = asked(service + '/session', wish)['sessionId']
                break
            except (urllib.error.URLError, ConnectionError):
                if time.monotonic() > end or process.poll() is not None:
                    raise
                time.sleep(0.5)
        asked('%s/session/%s/url' % (service, session), {'url': address})
        yield process


BROWSERS = {'Firefox': firefox, 'WebKitGTK': webkit}


class Posted:
    """What a page has to say: where it is, from time to time, and in the end what came of it all."""

    def __init__(self):
        self.last = 'nothing'
        self.when = time.monotonic()
        self.results = None

    def take(self, path, body):
        self.when = time.monotonic()
        if path.endswith('/results'):
            self.results = json.loads(body)
        else:
            self.last = body.decode(errors='replace')


def results(open_browser, address, posted):
    """What the page posts to posted in the end, which may take as long as it goes on posting."""
    with open_browser(address) as browser:
        posted.when = time.monotonic()
        while posted.results is None:
            if time.monotonic() - posted.when > PATIENCE:
                raise TimeoutError('the page has posted nothing for %d s; the last was: %s' % (PATIENCE, posted.last))
            if browser.poll() is not None:
                raise OSError('the browser has ended; the last that its page posted was: %s' % posted.last)
            time.sleep(0.2)
    return posted.results
