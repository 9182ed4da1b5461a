#!/bin/sh
# The instrument's window on displays of all kinds, with namespaces and without.
. "$(dirname "$0")/checks.sh"
export ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0"

# serve_display OPTION...: an X server of the machine; its number is in $display
serve_display() {
    mkfifo "$scratch/number"
    Xvfb -displayfd 3 -nolisten tcp "$@" 3>"$scratch/number" >/dev/null 2>&1 &
    server=$!
    started="$started $server"
    read -r display <"$scratch/number"
    rm "$scratch/number"
}

end_display() {
    kill -TERM $server
    wait $server 2>/dev/null
}

# opens BACKEND VARIABLE=VALUE...: the window comes up, and what runs in it has the window's display alone
opens() {
    backend=$1
    shift
    env -u XAUTHORITY "DISPLAY=:$display" "$@" "$checkout/simulator/instrument" --build "$build" --backend "$backend" \
        --profile screen --window -- sh -c '[ ! -e /run/callers-cookies ] && echo up on another than $1 |
            sed "s/than $DISPLAY\$/than its own/"' sh ":$display" 2>&1 | tail -n 1
}

mkdir "$scratch/home"
xauth -f "$scratch/cookies" add :0 . 00112233445566778899aabbccddeeff 2>/dev/null
for backend in namespaces proot; do
    why=$(refusal_of $backend)
    if [ "$why" ]; then
        skip $backend "$why"
        continue
    fi
    for sockets in 'unix' 'local'; do
        serve_display -auth "$scratch/cookies" -nolisten $sockets
        rm -f "$scratch/home/.Xauthority"
        xauth -f "$scratch/home/.Xauthority" add ":$display" . 00112233445566778899aabbccddeeff 2>/dev/null
        up="up on another than :$display"
        expect "$backend, no $sockets socket: cookie in XAUTHORITY" "$up" \
            "$(opens $backend HOME=/ "XAUTHORITY=$scratch/home/.Xauthority")"
        expect "$backend, no $sockets socket: cookie at home" "$up" "$(opens $backend "HOME=$scratch/home")"
        expect "$backend, no $sockets socket: the display is still there" yes "$(DISPLAY=:$display \
            XAUTHORITY="$scratch/home/.Xauthority" "$checkout/simulator/lib/display.py" && echo yes)"
        end_display
    done
done

# What ./run asks before it chooses between window and browser
serve_display -auth "$scratch/cookies"
expect 'a display that wants a cookie' '1, said why' "$(DISPLAY=:$display XAUTHORITY=/dev/null \
    "$checkout/simulator/lib/display.py" >"$scratch/why"; echo "$?, $([ -s "$scratch/why" ] && echo said why)")"
kill -STOP $server
expect 'a display that stands still' '1, it does not answer' \
    "$(DISPLAY=:$display "$checkout/simulator/lib/display.py" >"$scratch/why"; echo "$?, $(cat "$scratch/why")")"
kill -CONT $server
end_display
expect 'a display that is not there' '1, said why' "$(DISPLAY=:58999 \
    "$checkout/simulator/lib/display.py" >"$scratch/why"; echo "$?, $([ -s "$scratch/why" ] && echo said why)")"

finish
