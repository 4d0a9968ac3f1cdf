# A virtual X screen of our own, in a session of its own so that Ctrl-C reaches the program first.
# Sourced.

# start_virtual_screen WIDTHxHEIGHT: sets DISPLAY and screen_pid.
start_virtual_screen() {
    local fifo number
    fifo=$(mktemp -u)
    mkfifo "$fifo"
    setsid Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp 3>"$fifo" 2>/dev/null &
    screen_pid=$!
    read -r number <"$fifo"
    rm -f "$fifo"
    export DISPLAY=:$number
}

stop_virtual_screen() {
    kill "$screen_pid" 2>/dev/null || true
    wait "$screen_pid" 2>/dev/null || true
}
