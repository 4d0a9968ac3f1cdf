#include "tests/screen/reader.h"

#include <systemd/sd-bus.h>

#include <algorithm>
#include <stdexcept>

namespace corvana::prova {

namespace {

constexpr std::uint64_t sguardo = 50'000;  // microseconds
/// So many looks without a word: a busy machine never comes near it; it ends a hang.
constexpr int sguardiVani = 400;

constexpr const char* accessibile = "org.a11y.atspi.Accessible";
const Oggetto radice{.bus = "org.a11y.atspi.Registry",
                     .percorso = "/org/a11y/atspi/accessible/root"};

Processo::Avvio Demone(const CartellaPropria& cartella, const std::string& indirizzo,
                       const std::string& schermo) {
    const std::string casa = cartella.Percorso().string();
    return {.argomenti = {"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address",
                          "--address=" + indirizzo},
            // What the bus starts: nothing of the user's.
            .ambiente = {"DISPLAY=" + schermo, "HOME=" + casa, "XDG_RUNTIME_DIR=" + casa,
                         "XDG_CONFIG_HOME=" + casa, "XDG_CACHE_HOME=" + casa,
                         "GSETTINGS_BACKEND=memory", "DBUS_SESSION_BUS_ADDRESS=" + indirizzo},
            .uscita = cartella.Percorso() / "address"};
}

sd_bus* Apri(const std::string& indirizzo) {
    sd_bus* bus = nullptr;
    if (sd_bus_new(&bus) < 0 || sd_bus_set_address(bus, indirizzo.c_str()) < 0 ||
        sd_bus_set_bus_client(bus, 1) < 0 || sd_bus_start(bus) < 0)
        throw std::runtime_error("no bus at " + indirizzo);
    return bus;
}

void Esigi(int esito, const char* cosa) {
    if (esito < 0) throw std::runtime_error(cosa);
}

std::string Parola(sd_bus_message* messaggio) {
    const char* testo = "";
    return sd_bus_message_read(messaggio, "s", &testo) < 0 ? "" : testo;
}

}  // namespace

LettoreSchermo::LettoreSchermo(const std::string& schermo)
    : demone_(Demone(cartella_, Indirizzo(), schermo)),
      sessione_(nullptr, &sd_bus_flush_close_unref),
      bus_(nullptr, &sd_bus_flush_close_unref) {
    const auto indirizzo = cartella_.Percorso() / "address";
    const bool ascolta = AspettaInCartella(cartella_.Percorso(), demone_, [&] {
        std::error_code errore;
        return std::filesystem::file_size(indirizzo, errore) > 0 && !errore;
    });
    if (!ascolta) throw std::runtime_error("needs dbus-daemon");
    Collega();
    Ascolta();
}

LettoreSchermo::~LettoreSchermo() = default;

std::string LettoreSchermo::Indirizzo() const {
    return "unix:path=" + (cartella_.Percorso() / "bus").string();
}

void LettoreSchermo::Collega() {
    sessione_.reset(Apri(Indirizzo()));
    constexpr const char *servizio = "org.a11y.Bus", *oggetto = "/org/a11y/bus";
    sd_bus_message* risposta = nullptr;
    // The session's bus starts the service, out of the package at-spi2-core.
    Esigi(sd_bus_call_method(sessione_.get(), servizio, oggetto, servizio, "GetAddress", nullptr,
                             &risposta, ""),
          "needs at-spi2-core");
    const Risposta tenuta(risposta, &sd_bus_message_unref);
    bus_.reset(Apri(Parola(risposta)));
    // As screen readers do: programs speak to nobody before.
    Esigi(sd_bus_set_property(sessione_.get(), servizio, oggetto, "org.a11y.Status", "IsEnabled",
                              nullptr, "b", 1),
          "the status can't be set");
}

void LettoreSchermo::Ascolta() {
    for (const char* genere : {"object:", "window:", "focus:"})
        Esigi(sd_bus_call_method(bus_.get(), radice.bus.c_str(), "/org/a11y/atspi/registry",
                                 "org.a11y.atspi.Registry", "RegisterEvent", nullptr, nullptr, "s",
                                 genere),
              "no events");
    for (const char* interfaccia : {"Object", "Window"}) {
        const std::string regola =
            std::string("type='signal',interface='org.a11y.atspi.Event.") + interfaccia + "'";
        Esigi(sd_bus_add_match(
                  bus_.get(), nullptr, regola.c_str(),
                  [](sd_bus_message* messaggio, void* lettore, sd_bus_error*) {
                      static_cast<LettoreSchermo*>(lettore)->Ricevi(messaggio);
                      return 0;
                  },
                  this),
              "no match");
    }
}

void LettoreSchermo::Ricevi(sd_bus_message* messaggio) {
    Notizia notizia;
    const char* cosa = "";
    if (sd_bus_message_read(messaggio, "si", &cosa, &notizia.valore) < 0) return;
    notizia.genere = sd_bus_message_get_member(messaggio);
    notizia.cosa = cosa;
    notizia.di.bus = sd_bus_message_get_sender(messaggio);
    notizia.di.percorso = sd_bus_message_get_path(messaggio);
    sentite_.push_back(std::move(notizia));
}

bool LettoreSchermo::Aspetta(const std::function<bool()>& condizione) {
    for (int vani = 0; !condizione();) {
        if (sd_bus_process(bus_.get(), nullptr) == 0 && sentite_.empty() &&
            sd_bus_wait(bus_.get(), sguardo) == 0 && ++vani > sguardiVani)
            return false;
        // Asked only here: asking lets further news in.
        while (!sentite_.empty()) {
            Notizia notizia = std::move(sentite_.front());
            sentite_.pop_front();
            Leggi(notizia.di);
            if (notizia.cosa == "focused" && notizia.valore == 1 && notizia.di.Ha(stato::fuocato))
                fuoco_ = notizia.di;
            if (notizia.cosa == "showing" && notizia.valore == 1 &&
                notizia.di.ruolo == "notification")
                avvisi_.push_back(notizia.di.nome);
            notizie_.push_back(std::move(notizia));
        }
    }
    return true;
}

void LettoreSchermo::Dimentica() {
    notizie_.clear();
    avvisi_.clear();
}

LettoreSchermo::Risposta LettoreSchermo::Chiama(const Oggetto& oggetto, const char* interfaccia,
                                                const char* metodo) {
    sd_bus_message* risposta = nullptr;
    sd_bus_call_method(bus_.get(), oggetto.bus.c_str(), oggetto.percorso.c_str(), interfaccia,
                       metodo, nullptr, &risposta, "");
    return {risposta, &sd_bus_message_unref};
}

std::string LettoreSchermo::Proprieta(const Oggetto& oggetto, const char* interfaccia,
                                      const char* nome) {
    char* testo = nullptr;
    sd_bus_get_property_string(bus_.get(), oggetto.bus.c_str(), oggetto.percorso.c_str(),
                               interfaccia, nome, nullptr, &testo);
    const std::unique_ptr<char, decltype(&std::free)> tenuto(testo, &std::free);
    return testo ? testo : "";
}

/// One that is gone by now has neither name nor role.
void LettoreSchermo::Leggi(Oggetto& oggetto) {
    oggetto.nome = Proprieta(oggetto, accessibile, "Name");
    oggetto.descrizione = Proprieta(oggetto, accessibile, "Description");
    if (const Risposta ruolo = Chiama(oggetto, accessibile, "GetRoleName"))
        oggetto.ruolo = Parola(ruolo.get());
    const Risposta stati = Chiama(oggetto, accessibile, "GetState");
    if (!stati || sd_bus_message_enter_container(stati.get(), 'a', "u") < 0) return;
    std::uint32_t basso = 0, alto = 0;
    sd_bus_message_read(stati.get(), "u", &basso);
    sd_bus_message_read(stati.get(), "u", &alto);
    oggetto.stati = std::uint64_t{alto} << 32U | basso;
}

std::vector<Oggetto> LettoreSchermo::Figli(const Oggetto& oggetto) {
    std::vector<Oggetto> figli;
    const Risposta risposta = Chiama(oggetto, accessibile, "GetChildren");
    if (!risposta || sd_bus_message_enter_container(risposta.get(), 'a', "(so)") < 0) return figli;
    const char *bus = "", *percorso = "";
    while (sd_bus_message_read(risposta.get(), "(so)", &bus, &percorso) > 0) {
        Oggetto figlio{.bus = bus, .percorso = percorso};
        Leggi(figlio);
        figli.push_back(std::move(figlio));
    }
    return figli;
}

std::vector<Oggetto> LettoreSchermo::Finestre() {
    std::vector<Oggetto> finestre;
    for (const Oggetto& programma : Figli(radice))
        for (Oggetto& finestra : Figli(programma))
            finestre.push_back(std::move(finestra));
    return finestre;
}

std::vector<Oggetto> LettoreSchermo::Tutto(const Oggetto& oggetto) {
    std::vector<Oggetto> tutto;
    for (const Oggetto& figlio : Figli(oggetto)) {
        if (!figlio.Ha(stato::inVista)) continue;
        tutto.push_back(figlio);
        const std::vector<Oggetto> suoi = Tutto(figlio);
        tutto.insert(tutto.end(), suoi.begin(), suoi.end());
    }
    return tutto;
}

Oggetto LettoreSchermo::Ora(const Oggetto& oggetto) {
    Oggetto ora = oggetto;
    Leggi(ora);
    return ora;
}

std::string LettoreSchermo::Testo(const Oggetto& oggetto, std::int32_t massimo) {
    constexpr const char* interfaccia = "org.a11y.atspi.Text";
    std::int32_t lettere = 0;
    sd_bus_get_property_trivial(bus_.get(), oggetto.bus.c_str(), oggetto.percorso.c_str(),
                                interfaccia, "CharacterCount", nullptr, 'i', &lettere);
    sd_bus_message* risposta = nullptr;
    sd_bus_call_method(bus_.get(), oggetto.bus.c_str(), oggetto.percorso.c_str(), interfaccia,
                       "GetText", nullptr, &risposta, "ii", 0, std::min(lettere, massimo));
    const Risposta tenuta(risposta, &sd_bus_message_unref);
    return risposta ? Parola(risposta) : "";
}

double LettoreSchermo::Valore(const Oggetto& oggetto) {
    double valore = -1;
    sd_bus_get_property_trivial(bus_.get(), oggetto.bus.c_str(), oggetto.percorso.c_str(),
                                "org.a11y.atspi.Value", "CurrentValue", nullptr, 'd', &valore);
    return valore;
}

std::vector<std::string> LettoreSchermo::Azioni(const Oggetto& oggetto) {
    std::vector<std::string> azioni;
    const Risposta risposta = Chiama(oggetto, "org.a11y.atspi.Action", "GetActions");
    if (!risposta || sd_bus_message_enter_container(risposta.get(), 'a', "(sss)") < 0)
        return azioni;
    const char *nome = "", *senso = "", *tasti = "";
    while (sd_bus_message_read(risposta.get(), "(sss)", &nome, &senso, &tasti) > 0)
        azioni.emplace_back(nome);
    return azioni;
}

void LettoreSchermo::Aziona(const Oggetto& oggetto) {
    sd_bus_call_method(bus_.get(), oggetto.bus.c_str(), oggetto.percorso.c_str(),
                       "org.a11y.atspi.Action", "DoAction", nullptr, nullptr, "i", 0);
}

}  // namespace corvana::prova
