// A user who clicks, types and drags everywhere in the main window, closes it and starts the
// program again, for virtual days. All that he does comes from one seed.
#pragma once

#include <memory>
#include <random>

#include "core/startup.h"
#include "tests/support/rig.h"
#include "trainer/corvana_main.h"

namespace corvana::prova {

class UtenteDistratto {
public:
    UtenteDistratto(std::uint32_t seme, int eventi) : generatore_(seme), rimasti_(eventi) {}

    /// Uses the program until the events are used up or something is wrong.
    void Vivi();

    int avvii = 0;       ///< starts of the program
    int chiusure = 0;    ///< windows that he closed
    int corse = 0;       ///< runs that he was seen in
    double secondi = 0;  ///< virtual time that passed
    std::string guasto;  ///< what was wrong, empty for nothing

private:
    /// A window that stands for any other of the program's.
    struct FinestraFinta final : Form {
        explicit FinestraFinta(const char* nome) : Form(nome) {}
        Bottone bottone{*this, "bottone"};
    };
    /// One start of the program, over what the one before left stored.
    struct Programma : Banco {
        CasualeFisso chance;
        FinestraFinta finta{"frmFinta"}, about{"frmAbout"};
        CorvanaMainF finestra{Con(chance), TutteFinte()};
        bool inceppata = false;  ///< a message may have failed
        Secondarie TutteFinte();
    };

    int Tra(int basso, int alto);
    bool Capita(int suMille) { return Tra(0, 999) < suMille; }
    double Pausa();

    void Avvia();
    void Passo();
    void Agisci();
    Evento Gesto(const Form& davanti);
    Evento GestoQualunque(const Form& davanti);
    Evento Tasto();
    void Inceppa();

    /// Notes the first thing that is wrong and ends the script.
    void Esigi(bool vero, const char* cosa);
    void Controlla();
    void ControllaCorsa();
    void ControllaRiquadri();
    void ControllaChiusa();

    std::mt19937 generatore_;
    int rimasti_;
    std::map<std::string, std::string> depositi_;
    std::unique_ptr<Programma> programma_;
};

}  // namespace corvana::prova
