#include "tests/forms/form_rig.h"

namespace corvana::prova {

namespace {

void Chiama(const std::function<void()>& f) {
    if (f) f();
}

}  // namespace

FinestraProva::FinestraProva(std::string nome) : Form(std::move(nome)) {
    lista.List = Righe{"a", "b", "c"};
    combo.List = Righe{"Maggiore", "minore", "Minore", "minore"};
    bottone.Click = [this] { diario.emplace_back("click"); };
    bottone.DblClick = [this] { diario.emplace_back("double click"); };
    bottone.MouseDown = [this](const Evento&) { diario.emplace_back("down"); };
    bottone.MouseUp = [this](const Evento&) { diario.emplace_back("up"); };
    bottone.MouseMove = [this](const Evento&) { diario.emplace_back("move"); };
    dentro.Click = [this] { diario.emplace_back("inner click"); };
    voce.Click = [this] { diario.emplace_back("entry"); };
    lista.Click = [this] { diario.push_back("row " + std::to_string(lista.ListIndex())); };
    combo.Click = [this] { diario.push_back("chosen " + combo.Text()); };
    barra.Change = [this] { diario.push_back("change " + std::to_string(barra.Value())); };
    barra.Scroll = [this] { diario.push_back("scroll " + std::to_string(barra.Value())); };
    casella.Change = [this] { diario.push_back("text " + casella.Text()); };
    spunta.Click = [this] { diario.emplace_back(spunta.Value() ? "checked" : "unchecked"); };
}

void FinestraProva::Form_Load() {
    diario.emplace_back("load");
    Chiama(alCaricamento);
}

void FinestraProva::Form_Activate() {
    diario.emplace_back("activate");
    Chiama(allAttivazione);
}

void FinestraProva::Form_Unload(bool& Cancel) {
    diario.emplace_back("unload");
    Cancel = rifiuta;
    Chiama(allaChiusura);
}

void FinestraProva::Form_KeyDown(const Evento& tasto) {
    diario.push_back((tasto.ripetuto ? "again " : "key ") + std::to_string(tasto.codice));
    Chiama(alTasto);
}

void FinestraProva::Form_KeyUp(const Evento& tasto) {
    diario.push_back("let go " + std::to_string(tasto.codice));
    Chiama(alTasto);
}

void BancoFinestra::Accoda(Fatto fatto, const std::string& controllo, int valore) {
    Evento e;
    e.fatto = fatto;
    e.valore = valore;
    coda.Aggiungi(Fatta(e, controllo));
}

void BancoFinestra::AccodaTasto(Fatto fatto, int codice, bool ripetuto) {
    Evento e;
    e.fatto = fatto;
    e.codice = codice;
    e.ripetuto = ripetuto;
    coda.Aggiungi(Fatta(e, ""));
}

}  // namespace corvana::prova
