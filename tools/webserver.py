#!/usr/bin/python3
"""Serves a folder of the game to browsers on this machine, packed where they take it so.

    tools/webserver.py FOLDER [--port 8710]
"""

import argparse
import http.server
import os
import sys
import threading

TYPES = {'.html': 'text/html; charset=utf-8', '.css': 'text/css', '.mjs': 'text/javascript', '.js': 'text/javascript',
         '.wasm': 'application/wasm', '.svg': 'image/svg+xml', '.jpg': 'image/jpeg', '.png': 'image/png',
         '.woff2': 'font/woff2', '.ogg': 'audio/ogg', '.mp3': 'audio/mpeg', '.json': 'application/json',
         '.txt': 'text/plain; charset=utf-8', '.webmanifest': 'application/manifest+json'}


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = 'HTTP/1.1'
    folder = '.'
    posted = None  # called with path and body of what a page posts

    def file_named(self):
        path = self.path.split('?')[0].split('#')[0]
        if path.endswith('/'):
            path += 'index.html'
        whole = os.path.normpath(os.path.join(self.folder, path.lstrip('/')))
        inside = whole.startswith(os.path.abspath(self.folder) + os.sep)
        return whole if inside and os.path.isfile(whole) else None

    def do_GET(self):
        file = self.file_named()
        if file is None:
            self.send_error(404)
            return
        packed = os.path.exists(file + '.br') and 'br' in self.headers.get('Accept-Encoding', '')
        with open(file + '.br' if packed else file, 'rb') as stream:
            data = stream.read()
        self.send_response(200)
        self.send_header('Content-Type', TYPES.get(os.path.splitext(file)[1], 'application/octet-stream'))
        self.send_header('Content-Length', str(len(data)))
        # A name with a hash in it never means anything else.
        hashed = '/assets/' in self.path or '/code-' in self.path
        self.send_header('Cache-Control', 'max-age=31536000, immutable' if hashed else 'no-cache')
        self.send_header('Vary', 'Accept-Encoding')
        if packed:
            self.send_header('Content-Encoding', 'br')
        self.end_headers()
        if self.command != 'HEAD':
            self.wfile.write(data)

    do_HEAD = do_GET

    def do_POST(self):
        body = self.rfile.read(int(self.headers.get('Content-Length', 0)))
        if self.posted is None:
            self.send_error(405)
            return
        type(self).posted(self.path, body)
        self.send_response(204)
        self.send_header('Content-Length', '0')
        self.end_headers()

    def log_message(self, *_):
        pass


class Server(http.server.ThreadingHTTPServer):
    daemon_threads = True

    def handle_error(self, *_):
        pass  # browsers hang up when they please


def serve(folder, port=0, posted=None):
    """A server in a thread of its own, and where it is."""
    handler = type('FolderHandler', (Handler,), {'folder': os.path.abspath(folder),
                                                 'posted': staticmethod(posted) if posted else None})
    server = Server(('127.0.0.1', port), handler)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    return server, 'http://127.0.0.1:%d/' % server.server_address[1]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('folder')
    parser.add_argument('--port', type=int, default=8710)
    options = parser.parse_args()
    try:
        _, address = serve(options.folder, options.port)
    except (OSError, OverflowError) as error:
        sys.exit('Port %d of 127.0.0.1 cannot be had: %s. Another one will do: ./play --web --port 8711' %
                 (options.port, error))
    print('Veyrand is served at %s until you press Ctrl+C' % address, flush=True)
    try:
        threading.Event().wait()
    except KeyboardInterrupt:
        print()


if __name__ == '__main__':
    main()
