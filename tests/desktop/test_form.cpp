#include "tests/desktop/test_form.h"

#include <array>

namespace corvana::prova {

namespace {

constexpr std::array posti = {
    Posto{"File", 0, 0, 0, 0, "&File"},
    Posto{"Apri", 0, 0, 0, 0, "&Apri"},
    Posto{"Altro", 0, 0, 0, 0, "A&ltro"},
    Posto{"Uno", 0, 0, 0, 0, "&Uno"},
    Posto{"Copia", 0, 0, 0, 0, "&Copia"},
    Posto{"Aiuto", 0, 0, 0, 0, "A&iuto"},
    Posto{"scritta", 150, 150, 1500, 300, "Una &scritta"},
    Posto{"toccabile", 150, 600, 1500, 300, "?", "Mostra il nome"},
    Posto{"bottone", 150, 1050, 1500, 450, "&Via"},
    Posto{"secondo", 150, 1650, 1500, 450, "Secondo"},
    Posto{"casella", 150, 2250, 1500, 375},
    Posto{"lista", 1950, 150, 2100, 1950},
    Posto{"multipla", 1950, 150, 2100, 1950},
    Posto{"combo", 1950, 3750, 2100, 390, {}, "Tonalità"},
    Posto{"barra", 1950, 2250, 2100, 300},
    Posto{"ritta", 4200, 150, 300, 2100},
    Posto{"spunta", 150, 2850, 1500, 300, "Segnata"},
    Posto{"cornice", 1950, 2700, 2100, 900},
    Posto{"dentro", 150, 150, 1500, 450, "Dentro"},
    Posto{"sfumata", 150, 3300, 600, 1200},
    Posto{"icona", 900, 3300, 480, 480, {}, "Metronomo", "icona:metronomo"},
    Posto{"staff", 4800, 0, 6330, 4710, {}, {}, "pentagramma"},
    Posto{"n14", 2565, 3945, 435, 405, {}, {}, "maschera"},
    Posto{"n21", 3420, 3525, 255, 180, {}, {}, "testa"},
    Posto{"n50", 4605, 1290, 255, 180, {}, {}, "testa"},
    Posto{"n63", 5205, 105, 390, 900, {}, {}, "acuta"},
    Posto{"Regolo", 11250, 15, 255, 4695, {}, "Segna l'intervallo", "regolo"},
};

}  // namespace

FormSopra::FormSopra() : Form("FormSopra") {
    Caption = "Sopra";
    Width = 3000;
    Height = 1500;
    ok.Width = 1500;
    ok.Height = 450;
    ok.Caption = "OK";
}

FormDiProva::FormDiProva(Finestre& f, Riquadri& d, Diario diario)
    : Form("FormDiProva"), finestre(f), riquadri(d), diario_(std::move(diario)) {
    Componi();
    for (Controllo* c : Controlli())
        if (c != this && c != &scritta && c != &cornice && c != &Regolo && c->Padre() != &staff &&
            c != &staff)
            Ascolta(*c);
    Regolo.MouseDown = [this](const Evento& e) { diario_("Regolo " + std::to_string(e.y)); };
    casella.Invio = [this] { diario_("casella invio"); };
    casella.LostFocus = [this] { diario_("casella lasciata"); };
    multipla.Click = [this] {
        std::string righe = "multipla";
        for (const int riga : multipla.Selected())
            righe += ' ' + std::to_string(riga);
        diario_(righe);
    };
    icona.MouseMove = [this](const Evento&) { diario_("icona mossa"); };
    MouseMove = [this](const Evento&) { diario_("finestra mossa"); };
    sopra.ok.Click = [this] { finestre.Scarica(sopra); };
}

void FormDiProva::Componi() {
    Caption = "Prova";
    Width = 11700;
    Height = 4800;
    Disponi(*this, posti.data(), posti.size());
    for (const char* riga : {"Do", "Re", "-----", "Mi", "Fa"})
        lista.AddItem(riga);
    for (const char* riga : {"Do maggiore", "Fa maggiore", "La minore"})
        combo.AddItem(riga);
    barra.Min = 20;
    barra.Max = 140;
    barra.Value = 30;
    multipla.Visible = false;
    Apri.Checked = true;
    n21.Visible = false;
    n50.Visible = false;
    n63.Visible = false;
    servizio.Visible = true;
}

void FormDiProva::Ascolta(Controllo& c) {
    const auto scrivi = [this, &c](const char* cosa) {
        return [this, &c, cosa] { diario_(c.Name + " " + cosa); };
    };
    c.DblClick = scrivi("doppio");
    c.Click = scrivi("click");
    c.Change = scrivi("change");
    c.Scroll = scrivi("scroll");
    if (c.tipo == Genere::Etichetta || c.tipo == Genere::Bottone) {
        c.MouseDown = [giu = scrivi("giu")](const Evento&) { giu(); };
        c.MouseUp = [su = scrivi("su")](const Evento&) { su(); };
    }
}

void FormDiProva::Form_Unload(bool& Cancel) {
    diario_("unload");
    Cancel = !chiudibile;
}

void FormDiProva::Form_KeyDown(const Evento& e) {
    diario_("giu " + std::to_string(e.codice) + (e.ripetuto ? " ripetuto" : ""));
}

void FormDiProva::Form_KeyUp(const Evento& e) {
    diario_("su " + std::to_string(e.codice));
}

}  // namespace corvana::prova
