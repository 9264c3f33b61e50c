"""Browsers that are only asked to open a page, which then posts what came of it to the script."""

import contextlib
import glob
import json
import os
import shutil
import signal
import subprocess
import tempfile
import time
import urllib.error
import urllib.request

PATIENCE = 240  # seconds; the machine may be busy


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
                     env=dict(os.environ, HOME=profile)):
            yield
    finally:
        shutil.rmtree(profile, ignore_errors=True)


def asked(address, body=None):
    request = urllib.request.Request(address, None if body is None else json.dumps(body).encode(),
                                     {'Content-Type': 'application/json'})
    with urllib.request.urlopen(request, timeout=60) as answer:
        return json.load(answer)['value']


def free_display():
    return next(number for number in range(70, 170) if not os.path.exists('/tmp/.X11-unix/X%d' % number))


@contextlib.contextmanager
def webkit(address):
    driver = shutil.which('WebKitWebDriver')
    browsers = glob.glob('/usr/lib/*/webkit2gtk-4.*/MiniBrowser')
    if driver is None or not browsers:
        raise MissingBrowser('there is no WebKitGTK (tools/packages web-browsers installs webkit2gtk-driver)')
    display = ':%d' % free_display()
    port = 20000 + os.getpid() % 20000
    with started(['Xvfb', display, '-screen', '0', '1440x900x24', '-nolisten', 'tcp']), \
            started([driver, '--port=%d' % port], env=dict(os.environ, DISPLAY=display, GDK_BACKEND='x11',
                                                           LIBGL_ALWAYS_SOFTWARE='1',
                                                           WEBKIT_DISABLE_COMPOSITING_MODE='1')):
        service = 'http://127.0.0.1:%d' % port
        wish = {'capabilities': {'alwaysMatch': {'webkitgtk:browserOptions': {
            'binary': sorted(browsers)[-1], 'args': ['--automation']}}}}
        end = time.monotonic() + 60
        while True:
            try:
                session = asked(service + '/session', wish)['sessionId']
                break
            except (urllib.error.URLError, ConnectionError):
                if time.monotonic() > end:
                    raise
                time.sleep(0.5)
        asked('%s/session/%s/url' % (service, session), {'url': address})
        yield


BROWSERS = {'Firefox': firefox, 'WebKitGTK': webkit}


def results(open_browser, address, posted):
    """What the page posts: posted is the list that the server adds to."""
    with open_browser(address):
        end = time.monotonic() + PATIENCE
        while not posted:
            if time.monotonic() > end:
                raise TimeoutError('the page has posted nothing')
            time.sleep(0.2)
    return json.loads(posted[0])
