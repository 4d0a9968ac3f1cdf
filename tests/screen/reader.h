// A screen reader as a client of the accessibility bus: it asks for the tree of the program's
// windows, presses what it finds, and hears what the program tells. On buses of its own, gone with
// the object. One thread.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "tests/outputs/process.h"

struct sd_bus;
struct sd_bus_message;

namespace corvana::prova {

/// Numbers of the states of the protocol.
namespace stato {
constexpr int attivo = 1, spuntato = 4, abilitato = 8, fuocabile = 11, fuocato = 12, premuto = 20,
              scelto = 23, inVista = 25, spuntabile = 41;
}

/// Something in the tree, as it was when it was asked for.
struct Oggetto {
    std::string bus, percorso;
    std::string nome = {}, descrizione = {}, ruolo = {};
    std::uint64_t stati = 0;

    bool Ha(int quale) const { return (stati >> static_cast<unsigned>(quale) & 1U) != 0; }
};

/// What the program told.
struct Notizia {
    std::string genere;  ///< of the signal, as "StateChanged"
    std::string cosa;    ///< as "checked"
    int valore = 0;
    Oggetto di = {};  ///< as it was when the news was read
};

class LettoreSchermo {
public:
    /// On that screen. From now on programs that are told of `Ambiente` speak to it.
    explicit LettoreSchermo(const std::string& schermo);
    LettoreSchermo(const LettoreSchermo&) = delete;
    LettoreSchermo& operator=(const LettoreSchermo&) = delete;
    ~LettoreSchermo();

    /// What such a program must find in its environment.
    std::string Ambiente() const { return "DBUS_SESSION_BUS_ADDRESS=" + Indirizzo(); }

    /// Hears until the condition holds; false when it doesn't within a generous time.
    bool Aspetta(const std::function<bool()>& condizione);

    /// The windows of all programs.
    std::vector<Oggetto> Finestre();
    std::vector<Oggetto> Figli(const Oggetto& oggetto);
    /// All that lies in it and is to be seen, in its order.
    std::vector<Oggetto> Tutto(const Oggetto& oggetto);
    /// As it is now.
    Oggetto Ora(const Oggetto& oggetto);
    /// Text of a box, number of a slider, names of its actions.
    /// Of a text `massimo` letters at most: the signs around a table this end of the bus refuses.
    std::string Testo(const Oggetto& oggetto,
                      std::int32_t massimo = std::numeric_limits<std::int32_t>::max());
    double Valore(const Oggetto& oggetto);
    std::vector<std::string> Azioni(const Oggetto& oggetto);
    void Aziona(const Oggetto& oggetto);

    /// All news since the object was made, oldest first.
    const std::deque<Notizia>& Notizie() const { return notizie_; }
    /// What was told of the window wherever the focus was, oldest first.
    const std::vector<std::string>& Avvisi() const { return avvisi_; }
    /// What has the focus by the last news of it.
    const Oggetto& Fuoco() const { return fuoco_; }
    void Dimentica();

private:
    using Bus = std::unique_ptr<sd_bus, sd_bus* (*)(sd_bus*)>;
    using Risposta = std::unique_ptr<sd_bus_message, sd_bus_message* (*)(sd_bus_message*)>;

    std::string Indirizzo() const;
    void Collega();
    void Ascolta();
    Risposta Chiama(const Oggetto& oggetto, const char* interfaccia, const char* metodo);
    std::string Proprieta(const Oggetto& oggetto, const char* interfaccia, const char* nome);
    void Leggi(Oggetto& oggetto);
    void Ricevi(sd_bus_message* messaggio);

    CartellaPropria cartella_;
    Processo demone_;
    Bus sessione_, bus_;
    std::deque<Notizia> sentite_;  ///< whose objects weren't asked yet
    std::deque<Notizia> notizie_;
    std::vector<std::string> avvisi_;
    Oggetto fuoco_;
};

}  // namespace corvana::prova
