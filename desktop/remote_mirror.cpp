#include "desktop/remote_mirror.h"

#include "forms/controls.h"
#include "forms/form.h"

namespace corvana {

namespace {

void CopiaLimiti(const Controllo& controllo, CopiaControllo& copia) {
    if (const auto* casella = dynamic_cast<const Casella*>(&controllo)) {
        copia.lunghezzaMassima = casella->MaxLength;
        copia.filtro = casella->Filtro;
    }
    if (const auto* barra = dynamic_cast<const Barra*>(&controllo))
        copia.passoGrande = barra->LargeChange;
}

CopiaControllo CopiaUno(const Controllo& controllo) {
    CopiaControllo copia;
    copia.numero = controllo.Numero();
    copia.padre = controllo.Padre() ? controllo.Padre()->Numero() : 0;
    copia.tipo = controllo.tipo;
    copia.nome = controllo.Name;
    copia.stile = controllo.stile;
    for (const ProprietaBase* p : controllo.ListaProprieta())
        copia.proprieta.emplace_back(p->NomeProprieta(), p->Leggi());
    CopiaLimiti(controllo, copia);
    return copia;
}

}  // namespace

std::vector<CopiaControllo> Copia(const Form& form) {
    std::vector<CopiaControllo> copie;
    copie.reserve(form.Controlli().size());
    for (const Controllo* controllo : form.Controlli())
        copie.push_back(CopiaUno(*controllo));
    return copie;
}

void SpecchioRemoto::Mostra(const Form& form, bool modale) {
    cassetta_.Metti(MostraFinestra{form.Identita(), modale, form.Collocata(), Copia(form)});
}

void SpecchioRemoto::Cambiato(const Controllo& controllo, Nome nome, const Valore& valore) {
    cassetta_.Metti(
        CambiaProprieta{controllo.Finestra().Identita(), controllo.Numero(), nome, valore});
}

void SpecchioRemoto::Fuoco(const Controllo& controllo) {
    cassetta_.Metti(DaiFuoco{controllo.Finestra().Identita(), controllo.Numero()});
}

void SpecchioRemoto::Trascina(const Form& form) {
    cassetta_.Metti(TrascinaFinestra{form.Identita()});
}

void SpecchioRemoto::PopupMenu(const Controllo& menu) {
    cassetta_.Metti(ApriMenu{menu.Finestra().Identita(), menu.Numero()});
}

void SpecchioRemoto::Aiuto(const Form& form, const std::string& file) {
    cassetta_.Metti(MostraAiuto{file, form.HelpContextID});
}

void SpecchioRemoto::CambiaLingua(const ParoleSchermo& parole, const std::string& aiuto) {
    cassetta_.Metti(corvana::CambiaLingua{parole, aiuto});
}

void SpecchioRemoto::Chiudi(const Form& form) {
    cassetta_.Metti(ChiudiFinestra{form.Identita()});
}

void SpecchioRemoto::MsgBox(const std::string& testo) {
    Chiedi({0, GenereRiquadro::Messaggio, testo, {}, {}});
}

bool SpecchioRemoto::Domanda(const std::string& testo) {
    return Chiedi({0, GenereRiquadro::Domanda, testo, {}, {}}).si;
}

std::optional<std::string> SpecchioRemoto::InputBox(const std::string& testo,
                                                    const std::string& titolo,
                                                    const std::string& proposta) {
    Risposta risposta = Chiedi({0, GenereRiquadro::Immissione, testo, titolo, proposta});
    if (!risposta.si) return std::nullopt;
    return std::move(risposta.testo);
}

Risposta SpecchioRemoto::Chiedi(ApriRiquadro riquadro) {
    std::unique_lock guardia(blocco_);
    risposta_.reset();
    riquadro.numero = ++numero_;
    if (!rilasciato_) cassetta_.Metti(std::move(riquadro));
    arrivo_.wait(guardia, [this] { return rilasciato_ || risposta_; });
    return risposta_ ? std::move(*risposta_) : Risposta{};
}

void SpecchioRemoto::Rispondi(int numero, Risposta risposta) {
    {
        const std::lock_guard guardia(blocco_);
        if (numero != numero_ || risposta_) return;
        risposta_ = std::move(risposta);
    }
    arrivo_.notify_one();
}

void SpecchioRemoto::Rilascia() {
    {
        const std::lock_guard guardia(blocco_);
        rilasciato_ = true;
    }
    arrivo_.notify_one();
}

}  // namespace corvana
