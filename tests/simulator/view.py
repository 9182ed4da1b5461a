#!/usr/bin/python3 -IS
"""Knocks at the browser view of a running instrument as browsers and others would, over loopback with bare sockets.

  view.py CHECKOUT BUILD
"""
import os
import re
import signal
import socket
import subprocess
import sys

CHECKOUT, BUILD = sys.argv[1:]
failures = 0


def expect(what, expected, actual):
    global failures
    failures += expected != actual
    print("ok      %s" % what if expected == actual else
          "FAILED  %s\n        expected: %s\n        actual:   %s" % (what, expected, actual))


def ask(path, **headers):
    """The answer's status and its head, after a websocket also the first bytes of what the screen says."""
    headers = {"Host": "127.0.0.1:%s" % port, **{name.replace("_", "-"): text for name, text in headers.items()}}
    upgrade = "Upgrade" in headers
    with socket.create_connection(("127.0.0.1", int(port)), 20) as link:
        lines = ["GET %s HTTP/1.1" % path] + ["%s: %s" % header for header in headers.items()]
        link.sendall(("\r\n".join(lines) + "\r\n\r\n").encode())
        answer = b""
        while b"\r\n\r\n" not in answer or (upgrade and b" 101 " in answer and b"RFB" not in answer):
            chunk = link.recv(4096)
            if not chunk:
                break
            answer += chunk
    return int(answer.split()[1]), answer.decode("latin-1")


def websocket(query="", **headers):
    status, answer = ask("/websockify" + query, Connection="Upgrade", Upgrade="websocket",
                         Sec_WebSocket_Version="13", Sec_WebSocket_Key="dGhlIHNhbXBsZSBub25jZQ==",
                         Sec_WebSocket_Protocol="binary", **headers)
    return "screen" if status == 101 and "RFB" in answer else status


def fresh_token():
    address = subprocess.run([CHECKOUT + "/simulator/simctl", "-i", str(running.pid), "view"], check=True,
                             stdout=subprocess.PIPE, text=True).stdout
    return re.search("token=([0-9a-f]{32})", address).group(1)


# A port that is taken is passed over.
taken = socket.socket()
taken.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
taken.bind(("127.0.0.1", 0))
taken.listen()
first = taken.getsockname()[1]
running = subprocess.Popen([CHECKOUT + "/simulator/instrument", "--build", BUILD, "--profile", "screen", "--listed",
                            "--", CHECKOUT + "/simulator/serve", str(first), "sh", "-c",
                            "until [ -S /run/instrument/vnc ]; do sleep 0.05; done; echo ready; exec sleep 300"],
                           stdout=subprocess.PIPE, text=True)
try:
    address = ""
    for line in running.stdout:
        address += line
        if line == "ready\n":
            break
    port, page, token = re.search(r"http://127.0.0.1:(\d+)(/\S+token=([0-9a-f]{32}))", address).groups()
    own, foreign = "http://127.0.0.1:" + port, "http://example.org"
    expect("a taken port is passed over", True, int(port) > first)

    expect("a page without a token", 403, ask("/vnc.html")[0])
    expect("the screen without a token", 403, websocket(Origin=own))
    expect("a wrong token", 403, websocket("?token=" + "0" * 32, Origin=own))
    expect("a token that names another file", 403, websocket("?token=../port", Origin=own))
    expect("another site, with the token", 403, websocket("?token=" + token, Origin=foreign))
    expect("no site, with the token", 403, websocket("?token=" + token, Origin="null"))
    expect("another name for this host", 403, ask(page, Host="example.org:" + port)[0])

    status, answer = ask(page)  # none of the above has used it up
    cookie = re.search(r"Set-Cookie: ([^;\r]*)", answer)
    expect("the printed address", "303, without the token",
           "%d, %s the token" % (status, "with" if "token" in re.search("Location: (.*)", answer).group(1) else "without"))
    cookie = cookie.group(1) if cookie else ""
    expect("the printed address once more", 403, ask(page)[0])
    expect("the page with its cookie", 200, ask("/vnc.html", Cookie=cookie)[0])
    expect("a reload of the printed address", 303, ask(page, Cookie=cookie)[0])
    expect("the screen with the cookie", "screen", websocket(Origin=own, Cookie=cookie))
    expect("another site, with the cookie", 403, websocket(Origin=foreign, Cookie=cookie))
    expect("a wrong cookie", 403, websocket(Origin=own, Cookie=cookie[:-1] + "x"))

    token = fresh_token()
    expect("the screen with a fresh token", "screen", websocket("?token=" + token, Origin=own))
    expect("it is used up", 403, websocket("?token=" + token, Origin=own))

    with open("/proc/net/tcp", encoding="ascii") as stream:
        open_to_all = [line for line in stream if re.match(r" *\d+: 00000000:%04X " % int(port), line)]
    expect("nothing listens but on the loopback address", [], open_to_all)
finally:
    os.kill(running.pid, signal.SIGTERM)
    running.wait()
sys.exit(failures > 0)
