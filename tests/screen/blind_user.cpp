#include "tests/screen/blind_user.h"

#include <stdexcept>

namespace corvana::prova {

namespace {

/// In the order in which they begin; they end in the other.
struct Scena {
    Schermo schermo;
    LettoreSchermo lettore{schermo.Nome()};
    ProgrammaVero programma{schermo, {.pronta = false, .ambiente = {lettore.Ambiente()}}};
};

std::unique_ptr<Scena>& LaScena() {
    static std::unique_ptr<Scena> scena;
    return scena;
}

/// Among the entries of that menu, open or not, and of those that open from it.
Oggetto Voce(LettoreSchermo& lettore, const Oggetto& menu, const std::string& nome) {
    for (const Oggetto& figlio : lettore.Figli(menu)) {
        if (figlio.nome.starts_with(nome)) return figlio;
        if (Oggetto sotto = Voce(lettore, figlio, nome); !sotto.percorso.empty()) return sotto;
    }
    return {};
}

}  // namespace

void Cieco::SetUpTestSuite() {
    LaScena() = std::make_unique<Scena>();
    // The box that tells of the missing sound device reads itself to whoever comes upon it.
    if (Programma().AspettaFinestra("riquadro") == 0) throw std::runtime_error("no box");
    EXPECT_NE(Trova("Nessun dispositivo audio").ruolo, "");
    Batti("Return");
    AspettaFuoco("Start");
}

void Cieco::TearDownTestSuite() {
    LaScena().reset();
}

LettoreSchermo& Cieco::Lettore() {
    return LaScena()->lettore;
}

ProgrammaVero& Cieco::Programma() {
    return LaScena()->programma;
}

Oggetto Cieco::Davanti() {
    Oggetto davanti;
    const bool trovata = Lettore().Aspetta([&] {
        for (const Oggetto& finestra : Lettore().Finestre())
            if (finestra.Ha(stato::attivo)) davanti = finestra;
        return !davanti.percorso.empty();
    });
    if (!trovata) throw std::runtime_error("no window is active");
    return davanti;
}

Oggetto Cieco::Trova(const std::string& nome) {
    Oggetto trovato;
    const bool trovata = Lettore().Aspetta([&] {
        for (const Oggetto& oggetto : Lettore().Tutto(Davanti()))
            if (trovato.percorso.empty() && oggetto.ruolo != "notification" &&
                oggetto.nome.starts_with(nome))
                trovato = oggetto;
        return !trovato.percorso.empty();
    });
    if (!trovata) throw std::runtime_error("nothing is called " + nome);
    return trovato;
}

void Cieco::Muovi(const std::string& tasto) {
    const std::string prima = Lettore().Fuoco().percorso;
    Batti(tasto);
    if (!Lettore().Aspetta([&] { return Lettore().Fuoco().percorso != prima; }))
        throw std::runtime_error("the focus stays at " + Lettore().Fuoco().ruolo + " " +
                                 Lettore().Fuoco().nome + " of " + Davanti().nome);
}

void Cieco::AspettaFuoco(const std::string& nome) {
    if (!Lettore().Aspetta([&] { return Lettore().Fuoco().nome.starts_with(nome); }))
        throw std::runtime_error("the focus doesn't come to " + nome + ", it is at " +
                                 Lettore().Fuoco().nome);
}

void Cieco::VaiA(const std::string& nome) {
    constexpr int fermate = 120;  // more than any window has
    std::string passate;
    for (int passi = 0; !Lettore().Fuoco().nome.starts_with(nome); ++passi) {
        if (passi == fermate)
            throw std::runtime_error("the Tab key never comes to " + nome + " but to" + passate);
        Muovi("Tab");
        passate += " | " + Lettore().Fuoco().nome;
    }
}

std::string Cieco::Ascolta(const std::string& tasto) {
    Lettore().Dimentica();
    Batti(tasto);
    if (!Lettore().Aspetta([] { return !Lettore().Avvisi().empty(); })) return "(nothing)";
    return Lettore().Avvisi().back();
}

std::string Cieco::Detto(const std::string& parole) {
    std::string detto;
    Lettore().Aspetta([&] {
        for (const std::string& avviso : Lettore().Avvisi())
            if (avviso.find(parole) != avviso.npos) detto = avviso;
        return !detto.empty();
    });
    return detto;
}

void Cieco::DalMenu(const std::string& voce) {
    for (const Oggetto& oggetto : Lettore().Figli(Davanti()))
        if (oggetto.ruolo == "menu bar")
            if (const Oggetto trovata = Voce(Lettore(), oggetto, voce); !trovata.percorso.empty())
                return Lettore().Aziona(trovata);
    throw std::runtime_error("no menu has " + voce);
}

}  // namespace corvana::prova
