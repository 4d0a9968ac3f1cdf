#include "tests/trainer/main_window_rig.h"

namespace corvana::prova {

bool BancoPrincipale::Avvia() {
    return SvolgiCopione([this] {
        Main(Tutto(), false, [this] { finestre.Mostra(finestra); });
        finestre.FinoAllUltima();
    });
}

void BancoPrincipale::Estrai(int posizione, int limiteBasso, int limiteAlto) {
    const double posto = posizione - limiteBasso + 0.5;
    casuale.numeri.push_back(posto / (limiteAlto - limiteBasso + 1));
}

void BancoPrincipale::Righello(double t, int y) {
    Evento e;
    e.fatto = Fatto::MouseDown;
    e.codice = bottoneSinistro;
    e.y = y;
    Manda(t, e, "Regolo");
}

void BancoPrincipale::Slitta(double t, int valore) {
    Fa(t, Fatto::Scroll, "Slider1", valore);
    Fa(t, Fatto::Change, "Slider1", valore);
}

Secondarie BancoPrincipale::TutteLeSecondarie() {
    const auto apre = [this](const char* nome) { return [this, nome] { aperte.push_back(nome); }; };
    Secondarie s;
    s.frmInto = apre("frmInto");
    s.frmComposer = apre("frmComposer");
    s.frmOptions = apre("frmOptions");
    s.frmMidiTest = apre("frmMidiTest");
    s.frmStrum = apre("frmStrum");
    s.frmAbout = apre("frmAbout");
    s.metronomo.apri = apre("metronomo");
    s.metronomo.alterna = apre("metronomo alterna");
    s.metronomo.cambiaLingua = apre("metronomo cambiaLingua");
    s.aiuto = apre("aiuto");
    return s;
}

std::vector<int> BancoPrincipale::NoteInVista() const {
    std::vector<int> viste;
    for (const Posizione& p : Posizioni()) {
        const Controllo* nota = finestra.Trova("n" + std::to_string(p.numero));
        const bool maschera = p.specie == Specie::maschera;
        if (nota->Visible() != maschera) viste.push_back(p.numero);
    }
    return viste;
}

std::vector<std::string> BancoPrincipale::Onde() const {
    std::vector<std::string> nomi;
    for (const Registratore::Onda& onda : uscita.onde)
        nomi.push_back(onda.percorso.substr(onda.percorso.rfind('/') + 1));
    return nomi;
}

}  // namespace corvana::prova
