// A program with one MIDI port of the JACK server, which writes what arrives: an empty line when
// the port can be found, then a line of hexadecimal bytes for each message. Ends by a signal.
// Usage: corvana_midi_receiver NAME
#include <jack/jack.h>
#include <jack/midiport.h>
#include <unistd.h>

#include <array>
#include <string>

namespace {

bool Scrivi(const std::string& riga) {
    return write(STDOUT_FILENO, riga.data(), riga.size()) == static_cast<ssize_t>(riga.size());
}

std::string Riga(const jack_midi_event_t& messaggio) {
    constexpr std::array cifre = {'0', '1', '2', '3', '4', '5', '6', '7',
                                  '8', '9', 'a', 'b', 'c', 'd', 'e', 'f'};
    std::string riga;
    for (std::size_t i = 0; i < messaggio.size; ++i) {
        const auto byte = static_cast<unsigned char>(messaggio.buffer[i]);
        riga += {cifre.at(byte >> 4U), cifre.at(byte & 15U), ' '};
    }
    return riga + '\n';
}

/// On the server's thread; the server isn't a real-time one here, and so may be held up.
int Ricevi(jack_nframes_t frame, void* porta) {
    void* arrivati = jack_port_get_buffer(static_cast<jack_port_t*>(porta), frame);
    const jack_nframes_t quanti = jack_midi_get_event_count(arrivati);
    for (jack_nframes_t i = 0; i < quanti; ++i) {
        jack_midi_event_t messaggio{};
        if (jack_midi_event_get(&messaggio, arrivati, i) == 0 && !Scrivi(Riga(messaggio))) return 1;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    // The library's own remarks would stand among the messages.
    jack_set_info_function([](const char*) {});
    jack_client_t* cliente = jack_client_open(argv[1], JackNoStartServer, nullptr);
    if (!cliente) return 1;
    jack_port_t* porta =
        jack_port_register(cliente, "input", JACK_DEFAULT_MIDI_TYPE, JackPortIsInput, 0);
    if (!porta || jack_set_process_callback(cliente, Ricevi, porta) != 0) return 1;
    if (jack_activate(cliente) != 0 || !Scrivi("\n")) return 1;
    for (;;)
        pause();
}
