# A private sound server whose only sink goes nowhere. Sourced.

# start_null_sink FOLDER [COMMAND...]: sets PULSE_SERVER and sink_pid. COMMAND runs the server.
start_null_sink() {
    export PULSE_SERVER=unix:$1/pulse.socket
    HOME=$1 PULSE_RUNTIME_PATH=$1/pulse "${@:2}" pulseaudio -n --daemonize=no --exit-idle-time=-1 \
        --disable-shm=yes --log-target=null \
        --load="module-native-protocol-unix socket=$1/pulse.socket auth-anonymous=1" \
        --load="module-null-sink norewinds=1 rate=48000" &
    sink_pid=$!
    until [ -S "$1/pulse.socket" ]; do sleep 0.05; done
}

stop_null_sink() {
    kill "$sink_pid" 2>/dev/null || true
    wait "$sink_pid" 2>/dev/null || true
}
