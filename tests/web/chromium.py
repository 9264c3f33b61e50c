"""A browser without a window, driven through a pipe of its own. Nothing but the standard library."""

import base64
import json
import os
import select
import shutil
import signal
import subprocess
import tempfile
import time

START = 60  # seconds; the machine may be busy
ANSWER = 120
WAIT = 40  # for what a page takes a moment to do


class BrowserError(Exception):
    pass


class Chromium:
    """One browser with a profile of its own, which may be a former one's."""

    def __init__(self, profile=None, arguments=()):
        self.program = next((found for found in map(shutil.which, ('chromium', 'chromium-browser', 'google-chrome'))
                             if found), None)
        if self.program is None:
            raise BrowserError('there is no chromium (tools/packages web-test installs it)')
        self.own_profile = profile is None
        self.profile = profile or tempfile.mkdtemp(prefix='veyrand-browser-')
        self.arguments = list(arguments)
        self.process = None
        for attempt in (1, 2):
            try:
                self.start()
                return
            except BrowserError:
                self.kill()
                if attempt == 2:
                    raise

    def start(self):
        from_us, to_browser = os.pipe()
        from_browser, to_us = os.pipe()
        command = [self.program, '--headless=new', '--remote-debugging-pipe', '--user-data-dir=' + self.profile,
                   '--no-first-run', '--no-default-browser-check', '--disable-gpu', '--disable-dev-shm-usage',
                   '--disable-background-networking', '--disable-component-update', '--disable-sync',
                   '--disable-extensions', '--mute-audio', '--hide-scrollbars', '--no-proxy-server',
                   '--autoplay-policy=user-gesture-required', '--force-color-profile=srgb',
                   '--font-render-hinting=none', *self.arguments, 'about:blank']
        if os.geteuid() == 0:
            command.insert(1, '--no-sandbox')

        def wire():  # the browser reads its descriptor 3 and writes its descriptor 4
            os.setsid()
            os.dup2(from_us, 103)
            os.dup2(to_us, 104)
            os.dup2(103, 3)
            os.dup2(104, 4)

        self.process = subprocess.Popen(command, preexec_fn=wire, pass_fds=(3, 4), stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(from_us)
        os.close(to_us)
        self.write_to = to_browser
        self.read_from = from_browser
        self.buffer = b''
        self.number = 0
        self.events = []
        self.call('Browser.getVersion', patience=START)

    def call(self, method, session=None, patience=ANSWER, **parameters):
        self.number += 1
        message = {'id': self.number, 'method': method, 'params': parameters}
        if session:
            message['sessionId'] = session
        try:
            os.write(self.write_to, json.dumps(message).encode() + b'\0')
        except OSError as error:
            raise BrowserError('the browser has gone: %s' % error)
        until = time.monotonic() + patience
        wanted = self.number
        while True:
            answer = self.next_message(until, method)
            if answer.get('id') == wanted:
                if 'error' in answer:
                    raise BrowserError('%s: %s' % (method, answer['error'].get('message')))
                return answer['result']
            if 'method' in answer:
                self.events.append(answer)

    def next_message(self, until, what):
        while b'\0' not in self.buffer:
            left = until - time.monotonic()
            if left <= 0 or not select.select([self.read_from], [], [], left)[0]:
                raise BrowserError('%s: the browser does not answer' % what)
            piece = os.read(self.read_from, 1 << 20)
            if not piece:
                raise BrowserError('%s: the browser has ended' % what)
            self.buffer += piece
        message, _, self.buffer = self.buffer.partition(b'\0')
        return json.loads(message)

    def page(self, address='about:blank', width=1440, height=900, ratio=1, touch=False):
        target = self.call('Target.createTarget', url='about:blank')['targetId']
        session = self.call('Target.attachToTarget', targetId=target, flatten=True)['sessionId']
        page = Page(self, session, target)
        page.shape(width, height, ratio, touch)
        page.tell('Page.enable')
        page.tell('Runtime.enable')
        if address != 'about:blank':
            page.go(address)
        return page

    def kill(self):
        if self.process and self.process.poll() is None:
            try:
                os.killpg(self.process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            self.process.wait()
        for pipe in ('write_to', 'read_from'):
            if getattr(self, pipe, None) is not None:
                os.close(getattr(self, pipe))
                setattr(self, pipe, None)

    def close(self):
        self.kill()
        if self.own_profile:
            shutil.rmtree(self.profile, ignore_errors=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()


class Page:
    def __init__(self, browser, session, target):
        self.browser = browser
        self.session = session
        self.target = target

    def tell(self, method, patience=ANSWER, **parameters):
        return self.browser.call(method, session=self.session, patience=patience, **parameters)

    def shape(self, width, height, ratio=1, touch=False):
        self.tell('Emulation.setDeviceMetricsOverride', width=width, height=height, deviceScaleFactor=ratio,
                  mobile=touch)
        self.tell('Emulation.setTouchEmulationEnabled', enabled=touch, maxTouchPoints=1)

    def go(self, address):
        self.tell('Page.navigate', url=address)

    def reload(self):
        self.tell('Page.reload')

    def run(self, expression, patience=ANSWER):
        answer = self.tell('Runtime.evaluate', expression=expression, awaitPromise=True, returnByValue=True,
                           patience=patience)
        if 'exceptionDetails' in answer:
            details = answer['exceptionDetails']
            raise BrowserError(details.get('exception', {}).get('description') or details.get('text'))
        return answer['result'].get('value')

    def until(self, expression, what, patience=WAIT):
        """Waits for the condition, which the page itself looks at before each of its pictures."""
        end = time.monotonic() + patience
        while time.monotonic() < end:
            try:
                if self.run('(async () => { for (let n = 0; n < 25; ++n) { if (%s) return true; '
                            'await new Promise((go) => setTimeout(go, 20)); } return false; })()' % expression):
                    return
            except BrowserError as error:
                if 'context' not in str(error).lower() and 'navigat' not in str(error).lower() \
                        and 'not defined' not in str(error) and 'of undefined' not in str(error):
                    raise
        raise BrowserError('waited in vain for ' + what)

    def mouse(self, kind, x, y, **more):
        self.tell('Input.dispatchMouseEvent', type=kind, x=x, y=y, button='left', **more)

    def click(self, x, y):
        self.tell('Input.dispatchMouseEvent', type='mouseMoved', x=x, y=y)
        self.mouse('mousePressed', x, y, clickCount=1, buttons=1)
        self.mouse('mouseReleased', x, y, clickCount=1)

    def drag(self, x, y, to_x, to_y, steps=12):
        self.tell('Input.dispatchMouseEvent', type='mouseMoved', x=x, y=y)
        self.mouse('mousePressed', x, y, clickCount=1, buttons=1)
        for step in range(1, steps + 1):
            self.mouse('mouseMoved', x + (to_x - x) * step / steps, y + (to_y - y) * step / steps, buttons=1)
        self.mouse('mouseReleased', to_x, to_y, clickCount=1)

    def touch(self, points):
        """A finger that comes down at the first point, goes by the others, and leaves."""
        self.finger('touchStart', points[0])
        for point in points[1:]:
            self.finger('touchMove', point)
        self.finger('touchEnd')

    def finger(self, kind, point=None):
        self.tell('Input.dispatchTouchEvent', type=kind, touchPoints=[{'x': point[0], 'y': point[1]}] if point else [])

    def key(self, key, code, number, modifiers=0):
        for kind in ('rawKeyDown', 'keyUp'):
            self.tell('Input.dispatchKeyEvent', type=kind, key=key, code=code, windowsVirtualKeyCode=number,
                      modifiers=modifiers)

    def screenshot(self, file):
        data = self.tell('Page.captureScreenshot', format='png')['data']
        with open(file, 'wb') as out:
            out.write(base64.b64decode(data))
