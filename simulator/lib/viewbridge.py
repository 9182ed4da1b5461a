#!/usr/bin/python3 -I
"""The browser's way to the instrument's screen: serves the viewer and carries its data to x11vnc, for those who may.

  viewbridge.py SOCKET PORT DIRECTORY

Serves on PORT of the loopback address or the next free one, writes its number to DIRECTORY/port and returns; a child
goes on serving. A browser is let in by a token, which stands in the address that `simctl view` prints, once: it gets a
cookie for it, and the file of the token's name in DIRECTORY/tokens goes. Requests that another site makes a browser
send are refused, whatever they bring.
"""
import hmac
import os
import re
import secrets
import sys
from http.cookies import CookieError, SimpleCookie
from urllib.parse import parse_qs, urlencode, urlsplit, urlunsplit

from websockify.websocketproxy import LibProxyServer, ProxyRequestHandler

VIEWER = "/usr/share/novnc"
PORTS = 50


class Handler(ProxyRequestHandler):
    def _refusal(self):
        """Why the request is refused, or nothing. A token that it brings is used up."""
        server = self.server
        if self.headers.get("Host") not in server.hosts:
            return "This is another host's name"
        if self.headers.get("Origin", server.origins[0]) not in server.origins:
            return "Another site asked for this"
        try:
            cookie = SimpleCookie(self.headers.get("Cookie", "")).get(server.cookie)
        except CookieError:
            cookie = None
        if cookie and hmac.compare_digest(cookie.value.encode(), server.secret.encode()):
            return ""
        token = self._query().get("token", [""])[0]
        if re.fullmatch("[0-9a-f]{32}", token):
            try:
                os.unlink(os.path.join(server.tokens, token))
                return ""
            except OSError:
                pass
        return "The address is incomplete or was used before; simulator/simctl view prints a fresh one"

    def _query(self):
        return parse_qs(urlsplit(self.path).query)

    def _let_in(self):
        refusal = self._refusal()
        if refusal:
            self.send_error(403, explain=refusal)
        return not refusal

    def handle_upgrade(self):
        if self._let_in():
            super().handle_upgrade()

    def do_GET(self):
        if not self._let_in():
            return
        query = self._query()
        if not query.pop("token", None):
            super().do_GET()
            return
        # The token leaves the address line, and a reload finds the cookie.
        self.send_response(303)
        self.send_header("Location", urlunsplit(("", "", urlsplit(self.path).path, urlencode(query, True), "")))
        self.send_header("Set-Cookie", "%s=%s; HttpOnly; SameSite=Lax; Path=/" % (
            self.server.cookie, self.server.secret))
        self.send_header("Content-Length", "0")
        self.end_headers()

    def do_HEAD(self):
        if self._let_in():
            super().do_HEAD()

    def end_headers(self):
        self.send_header("X-Frame-Options", "DENY")
        self.send_header("Referrer-Policy", "no-referrer")
        super().end_headers()


class Server(LibProxyServer):
    daemon_threads = True

    def __init__(self, socket_path, port, directory):
        super().__init__(Handler, listen_host="127.0.0.1", listen_port=port, web=VIEWER, unix_target=socket_path)
        self.file_only = True
        self.hosts = ["%s:%d" % (name, port) for name in ("127.0.0.1", "localhost")]
        self.origins = ["http://" + host for host in self.hosts]
        self.tokens = os.path.join(directory, "tokens")
        self.cookie = "instrument-%d" % port  # a browser knows no ports: each instrument has a name of its own
        self.secret = secrets.token_hex(16)


def main():
    socket_path, first, directory = sys.argv[1], int(sys.argv[2]), sys.argv[3]
    server = None
    last = min(first + PORTS, 65536) - 1
    for port in range(first, last + 1):
        try:
            server = Server(socket_path, port, directory)
            break
        except OSError as error:
            reason = error.strerror
    if not server:
        sys.exit("no free port from %d to %d: %s" % (first, last, reason))
    os.makedirs(server.tokens, exist_ok=True)
    with open(os.path.join(directory, "port"), "w", encoding="ascii") as stream:
        stream.write("%d\n" % port)
    if os.fork():
        os._exit(0)
    server.serve_forever()


if __name__ == "__main__":
    main()
