#!/usr/bin/env python3
"""Answers the tests' HTTP requests on 127.0.0.1 at a free port.

The first path segment names the answer; the rest of the path is the
request of the program. Prints "PORT <n>" once, then "GET <path>" for every
request, so that a test sees what reached the server.
"""
import sys
import time
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer

UPDATE = b"x;;;!date!;;;2099-01-01"


class Handler(BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def log_message(self, *args):
        pass

    def send_body(self, status, body, length=None):
        self.send_response(status)
        self.send_header("Content-Type", "text/plain")
        self.send_header("Content-Length", str(len(body) if length is None else length))
        self.end_headers()
        self.wfile.write(body)
        self.wfile.flush()

    def do_GET(self):
        print("GET " + self.path, flush=True)
        mode = self.path.split("/")[1]
        if mode.startswith("date-"):
            self.send_body(200, b"x;;;!date!;;;" + mode[5:].encode())
        elif mode.startswith("status-"):
            # An error page that would read as an update if it were kept.
            self.send_body(int(mode[7:]), UPDATE)
        elif mode == "text":
            self.send_body(200, b"<html><body>Welcome</body></html>")
        elif mode == "empty":
            self.send_body(200, b"")
        elif mode == "nul":
            self.send_body(200, b"junk\0" + UPDATE)
        elif mode == "big":
            self.send_body(200, b"x" * (10 * 1024 * 1024) + b";;;!date!;;;2099-01-01")
        elif mode == "stall":
            time.sleep(60)
            self.send_body(200, UPDATE)
        elif mode == "halfway":
            # Promises more than it sends, then closes the connection.
            self.send_body(200, UPDATE, length=1000)
            self.close_connection = True
        elif mode.startswith("redirect-"):
            self.send_response(302)
            self.send_header("Location", "http://127.0.0.1:%s/date-2099-01-01/" % mode[9:])
            self.send_header("Content-Length", str(len(UPDATE)))
            self.end_headers()
            self.wfile.write(UPDATE)
        else:
            self.send_body(404, b"")


server = ThreadingHTTPServer(("127.0.0.1", 0), Handler)
server.daemon_threads = True
print("PORT %d" % server.server_address[1], flush=True)
try:
    server.serve_forever()
except KeyboardInterrupt:
    sys.exit(0)
