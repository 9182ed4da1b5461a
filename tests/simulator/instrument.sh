#!/bin/sh
# Runs instruments from outside and checks what they may and may not do to the machine.
#
#   instrument.sh CHECKOUT BUILD
. "$(dirname "$0")/checks.sh"
elsewhere=$(mktemp -d "/var/tmp/instrument.XXXXXX")
trap 'rm -rf "$scratch" "$TMPDIR" "$elsewhere"' EXIT

# Exit status
expect 'exit status of the command' 7 "$(status_of bare -- sh -c 'exit 7')"
expect 'status of a killed command' 139 "$(status_of bare -- sh -c 'kill -SEGV $$')"
expect 'status of a missing command' 127 "$(status_of bare -- no-such-command)"
expect 'arguments arrive as they are' 'a b|--build|' "$(bare -- printf '%s|' 'a b' --build)"
expect 'a build directory that is not there' 125 "$(status_of "$checkout/simulator/instrument" --build /nowhere -- true)"

# Nothing of the machine can be written, or reached
kept_apart() {
    for place in "$checkout" "$build" / /etc /usr /usr/local /usr/share /var /var/log /opt /root /sys; do
        [ -d "$place" ] || continue
        expect "no file can be made in $place" refused "$(bare -- sh -c \
            'if touch "$1/made-by-a-test"; then rm "$1/made-by-a-test"; echo written; else echo refused; fi' \
            sh "$place" 2>/dev/null)"
    done
    expect 'no kernel setting can be changed' refused "$(bare -- sh -c \
        'if echo x >/proc/sys/kernel/domainname; then echo changed; else echo refused; fi' 2>/dev/null)"
    expect 'no disk is in reach' '' "$(bare -- find /dev -type b)"
    expect 'processes of the machine are out of reach' gone "$(bare -- sh -c "kill -0 $$ || echo gone" 2>/dev/null)"
    expect 'shared memory is private' different \
        "$([ "$(bare -- readlink /proc/self/ns/ipc)" = "$(readlink /proc/self/ns/ipc)" ] && echo same || echo different)"
}
if [ $backend = namespaces ]; then
    kept_apart
else
    why=$(refusal_of namespaces)
    skip 'what only namespaces keep apart' "${why:-\$INSTRUMENT_BACKEND is proot}"
fi
touch "$scratch/of-the-machine"
expect 'files of the machine in /tmp are hidden' hidden \
    "$(bare -- sh -c 'if [ -e "$1" ]; then echo seen; else echo hidden; fi' sh "$scratch/of-the-machine")"
bare -- sh -c 'for d in /home /tmp /run /var/tmp /dev/shm /usr/local/module /usr/local/arvo/plugins; do
    echo x >$d/instrument-test-file || exit 1; done' || expect 'places of a unit are writable' writable refused
for place in /home /tmp /run /var/tmp /dev/shm /usr/local/module; do
    [ ! -e $place/instrument-test-file ] || expect "what is written to $place stays inside" inside outside
done

# A checkout below a covered place stays visible, and read-only
for place in "$scratch" "$elsewhere"; do
    cp -r "$checkout/simulator" "$place/simulator"
    copy="$place/simulator/instrument"
    expect "checkout in $place is visible" visible \
        "$("$copy" --build "$build" --profile bare -- sh -c 'simctl status >/dev/null && [ -e "$1" ] && echo visible' \
            sh "$copy")"
    [ $backend = proot ] || expect "checkout in $place is read-only" 1 \
        "$(status_of "$copy" --build "$build" --profile bare -- touch "$copy")"
done

# The segment
expect 'size of the segment' 'size 1024' "$(bare -- sh -c 'simctl segment show | head -n 1')"
expect 'segment of another size' 'size 100' "$(bare --segment-size 100 -- sh -c 'simctl segment show | head -n 1')"
expect 'no segment' 1 "$(status_of bare --without segment -- simctl segment show)"

# What is to stay
mkdir "$scratch/out"
bare --out "$scratch/out" -- sh -c 'echo kept >"$1/file"' sh "$scratch/out"
expect 'an output directory is written through' kept "$(cat "$scratch/out/file")"
bare --state "$scratch/state" -- sh -c 'echo kept >/home/root/file; echo kept >/tmp/var/etc/file'
expect 'a kept state is found again' 'kept kept' \
    "$(bare --state "$scratch/state" -- sh -c 'echo $(cat /home/root/file /tmp/var/etc/file)')"
expect 'without one every instrument is fresh' fresh "$(bare -- sh -c '[ -e /home/root/file ] || echo fresh')"

# Signals and the end
mkfifo "$scratch/out/ready"
# Directly, not through a function: the signal is for the instrument, not for a subshell around it.
"$checkout/simulator/instrument" --build "$build" --profile bare --out "$scratch/out" -- \
    sh -c 'trap "exit 5" TERM; echo >"$1/ready"; while :; do sleep 0.05; done' \
    sh "$scratch/out" &
outer=$!
read -r _ <"$scratch/out/ready"
kill -TERM $outer
wait $outer
expect 'a signal reaches the command' 5 $?

# Two side by side, then one is killed the hard way
"$checkout/simulator/instrument" --build "$build" --profile screen --out "$scratch/out" -- \
    sh -c 'echo $DISPLAY >"$1/ready"; exec sleep 86399' \
    sh "$scratch/out" &
outer=$!
read -r display <"$scratch/out/ready"
expect 'screens side by side are different' different \
    "$(instrument --profile screen -- sh -c '[ "$DISPLAY" = "$1" ] && echo same || echo different' sh "$display")"
inside=$(pgrep -f '^sleep 86399$')
kill -KILL $outer
wait $outer 2>/dev/null
gone() {
    ! kill -0 "$inside" 2>/dev/null && ! grep -q "@/tmp/.X11-unix/X${display#:}\$" /proc/net/unix
}
within 'nothing outlives a killed instrument' gone

# simctl
while IFS='|' read -r knob shown; do
    # shellcheck disable=SC2086 # words of the knob
    expect "adapter after wifi $knob" yes "$(bare -- sh -c 'simctl wifi $1
        iwconfig wlan0 2>&1 | grep -q "$2" && echo yes' sh "$knob" "$shown")"
done <<'TABLE'
off|No such device
idle|Mode:Managed  Access Point: Not-Associated
link 70|Link Quality=70/100
link 08|Link Quality=8/100
link 0|Access Point: [0-9A-F:]\{17\}
TABLE
while IFS='|' read -r command answer; do
    # shellcheck disable=SC2086 # words of the command
    expect "service: $command" "$answer" "$(bare -- sh -c "$command 2>&1" | tail -n 1 | sed 's/process [0-9]*/process N/')"
done <<'TABLE'
/sbin/initctl status orlo-cli|orlo-cli stop/waiting
/sbin/initctl start orlo-vnc|orlo-vnc start/running, process N
simctl service orlo-vnc start >/dev/null; initctl status orlo-vnc|orlo-vnc start/running, process N
initctl start orlo-vnc >/dev/null; initctl start orlo-vnc|initctl: Job is already running: orlo-vnc
initctl start orlo-vnc >/dev/null; initctl stop orlo-vnc|orlo-vnc stop/waiting
simctl service orlo-cli fail; initctl start orlo-cli|initctl: Job failed to start: orlo-cli
initctl start nonsense|initctl: Unknown job: nonsense
TABLE
# The USB daemon takes up what the shell's device monitor asks for, when there is a drive; what was written to the
# drive is on it the next time.
expect 'USB requests' 'mounted plugged empty mounted kept plugged refused unplugged' "$(instrument --profile full -- sh -c '
    cd /tmp/var/lib/usbd
    until_within_5s() { tries=100; until eval "$1"; do tries=$((tries - 1)); [ $tries -gt 0 ] || return 1; sleep 0.05; done; }
    usb() { simctl status | sed -n "s/^usb *//p"; }
    ask() { : >req-$1; until_within_5s "[ ! -e req-$1 ] && [ \$(usb) = $2 ]"; usb; }
    simctl usb plug
    ask mount mounted
    echo >/home/usbd/written
    ask umount plugged
    [ -e /home/usbd/written ] || echo empty
    ask mount mounted
    [ -e /home/usbd/written ] && [ -e /home/usbd/readme.txt ] && echo kept
    rm -r ../usbd; simctl usb mount; cd /tmp/var/lib/usbd # another directory, which the daemon finds
    ask umount plugged
    simctl usb unplug
    : >req-mount; until_within_5s "grep -q \"no drive\" /tmp/var/log/usbd.log" && echo refused
    usb' | tr '\n' ' ' | sed 's/ $//')"
expect 'status shows the lock' 'unlocked locked' "$(bare -- sh -c '
    simctl status | sed -n "s/^lock *//p"; : >/tmp/screen-locked.mark; simctl status | sed -n "s/^lock *//p"' | xargs)"
expect 'status shows the chassis and the calls of its clock tools' 'E peldasetclk LA 2; orlo-clocksrc --set gps' "$(bare -- sh -c '
    simctl board E; peldasetclk LA 2; peldasetclk LD 2 2>/dev/null; /usr/local/arvo/bin/orlo-clocksrc --set gps
    simctl status | sed -n "s/^board *//p; s/^clock *//p"' | xargs)"
expect 'status shows the services' 'orlo-cli stop/waiting; orlo-vnc start/running, process N' "$(bare -- sh -c '
    initctl start orlo-vnc >/dev/null; simctl status' | sed -n 's/^services *//p' | sed 's/process [0-9]*/process N/')"
for line in 'service' 'service nonsense start' 'wifi' 'wifi on' 'wifi link' 'wifi link 101' 'wifi link -1' 'usb' 'usb eject' 'fail' 'fail 0' 'fail 12' \
    'board' 'board F' 'segment' 'daemon stop' 'viewers x' 'nonsense'; do
    # shellcheck disable=SC2086
    message=$(bare -- sh -c 'simctl $1 2>&1 >/dev/null || echo "status $?"' sh "$line" | tail -n 2)
    case $message in
    simctl:*'status 2') expect "refused: simctl $line" told told ;;
    *) expect "refused: simctl $line" 'a message and status 2' "$message" ;;
    esac
done

# Without namespaces. proot traces its processes, and under a tracer a sanitizer build cannot look for leaks.
export ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0"
before=$(ls "$TMPDIR") # of the one that was killed
expect 'proot: tree and segment' 'size 1024' "$(instrument --backend proot --profile bare -- sh -c '
    stat /usr/local/arvo/plugins /home/root >/dev/null && simctl wifi idle && iwconfig wlan0 >/dev/null &&
        simctl segment show | head -n 1')"
expect 'proot: exit status' 6 "$(status_of instrument --backend proot --profile bare -- sh -c 'exit 6')"
expect 'proot: no scratch left' "$before" "$(ls "$TMPDIR")"

finish
