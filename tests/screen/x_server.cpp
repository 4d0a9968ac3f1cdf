#include "tests/screen/x_server.h"

#include <poll.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <ostream>
#include <stdexcept>

namespace corvana::prova {

namespace {

/// What the screen shows can change without a word to who watches its windows.
constexpr int sguardo = 50;  // milliseconds
/// So many looks at a screen on which nothing happens: a busy machine never comes near it; it ends
/// a hang.
constexpr int sguardiVani = 400;

template <class T>
using Risposta = std::unique_ptr<T, decltype(&std::free)>;

template <class T>
Risposta<T> Presa(T* risposta) {
    return {risposta, &std::free};
}

std::string Contenuto(const std::filesystem::path& file) {
    std::ifstream flusso(file);
    return {std::istreambuf_iterator<char>(flusso), {}};
}

}  // namespace

bool Rettangolo::Contiene(const Rettangolo& altro) const {
    return altro.x >= x && altro.y >= y && altro.x + altro.larghezza <= x + larghezza &&
           altro.y + altro.altezza <= y + altezza;
}

bool Rettangolo::Tocca(const Rettangolo& altro) const {
    return altro.x < x + larghezza && x < altro.x + altro.larghezza && altro.y < y + altezza &&
           y < altro.y + altro.altezza;
}

std::ostream& operator<<(std::ostream& dove, const Rettangolo& r) {
    return dove << r.x << ',' << r.y << ' ' << r.larghezza << 'x' << r.altezza;
}

Schermo::Schermo() {
    AvviaServer();
    Collega();
    AvviaGestore();
}

Schermo::~Schermo() {
    server_x_.reset();
}

void Schermo::AvviaServer() {
    const auto numero = cartella_.Percorso() / "numero";
    server_ = std::make_unique<Processo>(
        Processo::Avvio{{"Xvfb", "-displayfd", "1", "-nolisten", "tcp", "-screen", "0",
                         std::to_string(larghezza) + "x" + std::to_string(altezza) + "x24"},
                        {},
                        numero});
    const auto detto = [&] { return Contenuto(numero).ends_with('\n'); };
    if (!AspettaInCartella(cartella_.Percorso(), *server_, detto))
        throw std::runtime_error("Xvfb doesn't start");
    const std::string cifre = Contenuto(numero);
    nome_ = ":" + cifre.substr(0, cifre.find('\n'));
}

void Schermo::Collega() {
    server_x_.reset(xcb_connect(nome_.c_str(), nullptr));
    if (xcb_connection_has_error(server_x_.get())) throw std::runtime_error("no X connection");
    radice_ = xcb_setup_roots_iterator(xcb_get_setup(server_x_.get())).data->root;
    const std::uint32_t eventi =
        XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(server_x_.get(), radice_, XCB_CW_EVENT_MASK, &eventi);
}

void Schermo::AvviaGestore() {
    gestore_ = std::make_unique<Processo>(
        Processo::Avvio{{"openbox", "--sm-disable"},
                        {"DISPLAY=" + nome_, "HOME=" + cartella_.Percorso().string(),
                         "XDG_CONFIG_HOME=" + cartella_.Percorso().string()}});
    if (!Aspetta([this] { return !Valori(radice_, "_NET_SUPPORTING_WM_CHECK").empty(); }))
        throw std::runtime_error("openbox doesn't start");
    // What appears before it answers is never given the keyboard, and so early it may miss a word.
    const std::string quante = "_NET_NUMBER_OF_DESKTOPS";
    if (!Aspetta([&] {
            Chiedi(radice_, quante, {1});
            return Valori(radice_, quante) == std::vector<std::uint32_t>{1};
        }))
        throw std::runtime_error("openbox doesn't answer");
}

bool Schermo::Aspetta(const std::function<bool()>& condizione) {
    for (int vane = 0; !condizione();) {
        pollfd attesa{xcb_get_file_descriptor(server_x_.get()), POLLIN, 0};
        if (poll(&attesa, 1, sguardo) == 0 && ++vane > sguardiVani) return false;
        while (const auto evento = Presa(xcb_poll_for_event(server_x_.get()))) {}
        if (xcb_connection_has_error(server_x_.get())) return false;
    }
    return true;
}

xcb_atom_t Schermo::Atomo(const std::string& nome) {
    xcb_connection_t* x = server_x_.get();
    const auto risposta = Presa(xcb_intern_atom_reply(
        x, xcb_intern_atom(x, 0, static_cast<std::uint16_t>(nome.size()), nome.c_str()), nullptr));
    return risposta ? risposta->atom : xcb_atom_t{0};
}

std::string Schermo::Testo(xcb_window_t finestra, const std::string& proprieta) {
    constexpr std::uint32_t limite = 4096;
    xcb_connection_t* x = server_x_.get();
    const auto domanda =
        xcb_get_property(x, 0, finestra, Atomo(proprieta), XCB_GET_PROPERTY_TYPE_ANY, 0, limite);
    const auto risposta = Presa(xcb_get_property_reply(x, domanda, nullptr));
    if (!risposta) return {};
    return {static_cast<const char*>(xcb_get_property_value(risposta.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(risposta.get()))};
}

std::vector<std::uint32_t> Schermo::Valori(xcb_window_t finestra, const std::string& proprieta) {
    const std::string byte = Testo(finestra, proprieta);
    std::vector<std::uint32_t> valori(byte.size() / sizeof(std::uint32_t));
    if (!valori.empty())
        std::memcpy(valori.data(), byte.data(), valori.size() * sizeof(std::uint32_t));
    return valori;
}

std::vector<xcb_window_t> Schermo::Finestre() {
    return Valori(radice_, "_NET_CLIENT_LIST_STACKING");
}

xcb_window_t Schermo::Cerca(const std::string& ruolo) {
    for (const xcb_window_t finestra : Finestre())
        if (Testo(finestra, "WM_WINDOW_ROLE") == ruolo && SiVede(finestra)) return finestra;
    return 0;
}

xcb_window_t Schermo::Attiva() {
    const auto attiva = Valori(radice_, "_NET_ACTIVE_WINDOW");
    return attiva.empty() ? 0 : attiva.front();
}

xcb_window_t Schermo::TransitoriaPer(xcb_window_t finestra) {
    const auto padrona = Valori(finestra, "WM_TRANSIENT_FOR");
    return padrona.empty() ? 0 : padrona.front();
}

bool Schermo::HaStato(xcb_window_t finestra, const std::string& stato) {
    const auto stati = Valori(finestra, "_NET_WM_STATE");
    return std::find(stati.begin(), stati.end(), Atomo(stato)) != stati.end();
}

bool Schermo::SiVede(xcb_window_t finestra) {
    xcb_connection_t* x = server_x_.get();
    const auto risposta =
        Presa(xcb_get_window_attributes_reply(x, xcb_get_window_attributes(x, finestra), nullptr));
    return risposta && risposta->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool Schermo::Sopra(xcb_window_t sopra, xcb_window_t sotto) {
    const auto pila = Finestre();
    return std::find(pila.begin(), pila.end(), sotto) < std::find(pila.begin(), pila.end(), sopra);
}

Rettangolo Schermo::Interno(xcb_window_t finestra) {
    xcb_connection_t* x = server_x_.get();
    const auto misura = Presa(xcb_get_geometry_reply(x, xcb_get_geometry(x, finestra), nullptr));
    const auto posto = Presa(xcb_translate_coordinates_reply(
        x, xcb_translate_coordinates(x, finestra, radice_, 0, 0), nullptr));
    if (!misura || !posto) throw std::runtime_error("the window is gone");
    return {posto->dst_x, posto->dst_y, misura->width, misura->height};
}

Rettangolo Schermo::Cornice(xcb_window_t finestra) {
    Rettangolo r = Interno(finestra);
    const auto margini = Valori(finestra, "_NET_FRAME_EXTENTS");
    if (margini.size() < 4) return r;
    const auto margine = [&](std::size_t lato) { return static_cast<int>(margini[lato]); };
    return {r.x - margine(0), r.y - margine(2), r.larghezza + margine(0) + margine(1),
            r.altezza + margine(2) + margine(3)};
}

std::vector<std::uint8_t> Schermo::Immagine(const Rettangolo& r) {
    xcb_connection_t* x = server_x_.get();
    const auto domanda =
        xcb_get_image(x, XCB_IMAGE_FORMAT_Z_PIXMAP, radice_, static_cast<std::int16_t>(r.x),
                      static_cast<std::int16_t>(r.y), static_cast<std::uint16_t>(r.larghezza),
                      static_cast<std::uint16_t>(r.altezza), ~0U);
    const auto risposta = Presa(xcb_get_image_reply(x, domanda, nullptr));
    if (!risposta) throw std::runtime_error("no picture of that part of the screen");
    const std::uint8_t* inizio = xcb_get_image_data(risposta.get());
    return {inizio, inizio + xcb_get_image_data_length(risposta.get())};
}

void Schermo::Xdotool(std::vector<std::string> argomenti) {
    argomenti.insert(argomenti.begin(), "xdotool");
    Processo processo({std::move(argomenti), {"DISPLAY=" + nome_}});
    if (processo.EsitoFinale() != 0) throw std::runtime_error("xdotool failed");
}

void Schermo::Clicca(Punto dove) {
    Xdotool({"mousemove", std::to_string(dove.x), std::to_string(dove.y), "click", "1"});
}

void Schermo::Premi(Punto dove, int bottone) {
    Xdotool({"mousemove", std::to_string(dove.x), std::to_string(dove.y), "mousedown",
             std::to_string(bottone)});
}

void Schermo::Lascia(Punto dove, int bottone) {
    Xdotool({"mousemove", std::to_string(dove.x), std::to_string(dove.y), "mouseup",
             std::to_string(bottone)});
}

void Schermo::Batti(const std::string& tasto) {
    Xdotool({"key", tasto});
}

void Schermo::Tieni(const std::string& tasto, int millisecondi) {
    Xdotool({"key", "--delay", std::to_string(millisecondi), tasto});
}

void Schermo::Sposta(xcb_window_t finestra, Punto dove) {
    // The frame's corner, its left and its top alone.
    constexpr std::uint32_t quali = XCB_GRAVITY_NORTH_WEST | 3U << 8;
    Chiedi(finestra, "_NET_MOVERESIZE_WINDOW",
           {quali, static_cast<std::uint32_t>(dove.x), static_cast<std::uint32_t>(dove.y)});
}

void Schermo::Chiedi(xcb_window_t finestra, const std::string& cosa,
                     std::vector<std::uint32_t> dati) {
    xcb_client_message_event_t messaggio{};
    messaggio.response_type = XCB_CLIENT_MESSAGE;
    messaggio.format = 32;
    messaggio.window = finestra;
    messaggio.type = Atomo(cosa);
    std::copy(dati.begin(), dati.end(), std::begin(messaggio.data.data32));
    xcb_send_event(server_x_.get(), 0, radice_,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&messaggio));
    xcb_flush(server_x_.get());
}

void Schermo::Riduci(xcb_window_t finestra) {
    constexpr std::uint32_t ridotta = 3;
    Chiedi(finestra, "WM_CHANGE_STATE", {ridotta});
}

void Schermo::Riapri(xcb_window_t finestra) {
    constexpr std::uint32_t daUnaBarra = 2;
    Chiedi(finestra, "_NET_ACTIVE_WINDOW", {daUnaBarra});
}

void Schermo::Chiudi(xcb_window_t finestra) {
    constexpr std::uint32_t cambia = 2;
    const std::string segno = "_NET_WM_STATE_BELOW";
    const bool prima = HaStato(finestra, segno);
    Chiedi(finestra, "_NET_CLOSE_WINDOW", {});
    // It answers requests in their order.
    Chiedi(finestra, "_NET_WM_STATE", {cambia, Atomo(segno)});
    if (!Aspetta([&] {
            return HaStato(finestra, segno) != prima || !Valori(finestra, "WM_NAME").size();
        }))
        throw std::runtime_error("the window manager doesn't answer");
}

}  // namespace corvana::prova
