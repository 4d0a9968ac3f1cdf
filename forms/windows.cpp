#include "forms/windows.h"

#include <algorithm>

#include "forms/fault.h"
#include "forms/for_now.h"

namespace corvana {

namespace {

/// The control that the event is for, whichever of the open windows it lies in; or null.
Controllo* Destinatario(const std::vector<Form*>& aperte, const Evento& evento) {
    const auto form = std::find_if(aperte.begin(), aperte.end(), [&](const Form* aperta) {
        return aperta->Identita() == evento.finestra;
    });
    if (form == aperte.end()) return nullptr;
    const auto& controlli = (*form)->Controlli();
    const bool esiste =
        evento.controllo >= 0 && evento.controllo < static_cast<int>(controlli.size());
    return esiste ? controlli[static_cast<std::size_t>(evento.controllo)] : nullptr;
}

/// A button of the mouse goes down: of a double click the second time.
bool Preme(const Evento& evento) {
    return evento.fatto == Fatto::MouseDown || evento.fatto == Fatto::DblClick;
}

}  // namespace

Finestre::Finestre(Pompa& pompa, Riquadri& riquadri, Specchio* specchio)
    : pompa_(pompa), riquadri_(riquadri), specchio_(specchio) {
    pompa_.PonConsegna([this](const Evento& evento) { Consegna(evento); });
}

void Finestre::Mostra(Form& form) {
    Apri(form, false);
}

void Finestre::MostraModale(Form& form) {
    try {
        if (!Apri(form, true)) return;
        while (Aperta(form))
            pompa_.AttendiEvento(perSempre);
    } catch (const FineProgramma&) {
        Congeda(form);
        throw;
    }
    if (Form* sotto = Davanti()) Attiva(*sotto);
}

bool Finestre::Apri(Form& form, bool modale) {
    if (pompa_.InChiusura()) return false;
    // The window beneath, which gets nothing from now on, mustn't wait for a release.
    Alza(nullptr);
    form.Form_Load();
    form.identita_ = ++ultimaIdentita_;
    aperte_.push_back(&form);
    form.specchio_ = specchio_;
    if (specchio_) specchio_->Mostra(form, modale);
    Attiva(form);
    return true;
}

void Finestre::Attiva(Form& form) {
    const std::uint32_t questa = form.identita_;
    Proteggi([&] { form.Form_Activate(); });
    if (form.inCiclo_ == questa) return;
    const PerOra cicla(form.inCiclo_, questa);
    const auto aperta = [&] { return form.identita_ == questa; };
    while (aperta() && !Proteggi([&] { form.CicloResidente(); }) && aperta())
        pompa_.AttendiEvento(perSempre);
}

bool Finestre::Aperta(const Form& form) const {
    return std::find(aperte_.begin(), aperte_.end(), &form) != aperte_.end();
}

bool Finestre::Scarica(Form& form) {
    if (!Aperta(form)) return true;
    bool Cancel = false;
    form.Form_Unload(Cancel);
    if (Cancel) return false;
    Togli(form);
    return true;
}

void Finestre::Togli(Form& form) {
    std::erase(aperte_, &form);
    if (specchio_) specchio_->Chiudi(form);
    form.specchio_ = nullptr;
    form.identita_ = 0;
    form.collocata_ = false;
    Alza(&form);
}

void Finestre::Congeda(Form& form) {
    if (!Aperta(form)) return;
    inChiusura_ = true;
    pompa_.PonCongedo(true);
    Evento evento;
    evento.fatto = Fatto::Chiudi;
    Riferisci(form, evento);
    if (Aperta(form)) Togli(form);
    pompa_.PonCongedo(false);
}

void Finestre::FinoAllUltima(const std::function<void()>& inizio) {
    try {
        if (inizio) inizio();
        while (!aperte_.empty())
            pompa_.AttendiEvento(perSempre);
    } catch (const FineProgramma&) {
        while (!aperte_.empty())
            Congeda(*aperte_.back());
    }
}

void Finestre::Consegna(const Evento& evento) {
    if (evento.fatto == Fatto::Spostata) return PrendiPosto(evento);
    // A release must never be lost, whoever is in front: what is held would seem held for ever.
    if (evento.fatto == Fatto::FuocoPerso) return LasciaTutto();
    if (evento.fatto == Fatto::KeyUp) tasti_.Segna(evento.codice, false);
    if (evento.fatto == Fatto::MouseUp) return AlzaUno(evento);
    // It can't go down twice: that it came up in between wasn't seen.
    if (Preme(evento)) AlzaUno(evento);
    Controllo* controllo = Destinatario(aperte_, evento);
    if (!controllo) return;
    // What has been typed is to be looked at, whatever has become of the box since.
    if (evento.fatto == Fatto::LostFocus) return Riferisci(*controllo, evento);
    if (&controllo->Finestra() != Davanti() || !controllo->Utilizzabile())
        return controllo->Ripeti();
    if (evento.fatto == Fatto::KeyDown) tasti_.Segna(evento.codice, true);
    if (Preme(evento)) bottoni_.Segna(*controllo, evento);
    controllo->Accogli(evento);
    Riferisci(*controllo, evento);
}

void Finestre::LasciaTutto() {
    tasti_.LasciaTutti();
    Alza(nullptr);
}

void Finestre::Alza(const Form* form) {
    while (const auto pressione = bottoni_.PrendiDi(form))
        Riferisci(*pressione->controllo, Rilascio(*pressione, {}, nullptr));
}

void Finestre::AlzaUno(const Evento& su) {
    if (const auto pressione = bottoni_.Prendi(su.codice))
        Riferisci(*pressione->controllo, Rilascio(*pressione, su, Destinatario(aperte_, su)));
}

void Finestre::PrendiPosto(const Evento& evento) {
    Controllo* controllo = Destinatario(aperte_, evento);
    if (!controllo) return;
    controllo->Left.PonDaUtente(evento.x);
    controllo->Top.PonDaUtente(evento.y);
}

bool Finestre::Proteggi(const std::function<void()>& cosa) {
    try {
        cosa();
        return true;
    } catch (const Guasto& guasto) {
        riquadri_.MsgBox(TestoGuasto(guasto));
    } catch (const std::exception& errore) {
        riquadri_.MsgBox(TestoGuasto(Guasto(guastoInterno, errore.what())));
    }
    return false;
}

void Finestre::Riferisci(Controllo& controllo, const Evento& evento) {
    Proteggi([&] { Smista(controllo, evento); });
}

void Finestre::Smista(Controllo& controllo, const Evento& evento) {
    if (evento.fatto == Fatto::Chiudi) {
        Scarica(controllo.Finestra());
        return;
    }
    const bool f1 = evento.fatto == Fatto::KeyDown && evento.codice == vk::f1;
    if (f1 && !evento.ripetuto) ChiediAiuto();
    controllo.Ricevi(evento);
}

void Finestre::ChiediAiuto() const {
    if (aiuto_ && Davanti()) aiuto_(*Davanti());
}

void Finestre::CambiaLingua(const ParoleSchermo& parole, const std::string& aiuto) const {
    if (specchio_) specchio_->CambiaLingua(parole, aiuto);
}

}  // namespace corvana
