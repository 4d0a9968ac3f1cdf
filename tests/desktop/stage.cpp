#include "tests/desktop/stage.h"

namespace corvana::prova {

Palco::Palco(const std::function<void(FormDiProva&)>& prepara) {
    scrivania.Avvia([this, prepara] { Logica(prepara); });
    AspettaFinestra(scrivania, QStringLiteral("FormDiProva"));
}

Palco::~Palco() {
    Ordina([](FormDiProva& form) { form.chiudibile = true; });
    scrivania.Termina();
}

void Palco::Logica(const std::function<void(FormDiProva&)>& prepara) {
    OrologioReale orologio;
    Pompa pompa(orologio, scrivania.Coda());
    Finestre finestre(pompa, scrivania.Riquadri(), &scrivania.Schermo());
    FormDiProva form(finestre, scrivania.Riquadri(), [this](std::string riga) {
        const std::lock_guard guardia(blocco_);
        diario_.push_back(std::move(riga));
    });
    form.pompa = &pompa;
    form.servizio.Click = [this, &form] { Serve(form); };
    {
        const std::lock_guard guardia(blocco_);
        servizio_ = form.servizio.Numero();
    }
    if (prepara) prepara(form);
    finestre.Mostra(form);
    finestre.FinoAllUltima();
}

void Palco::Serve(FormDiProva& form) {
    std::vector<std::function<void(FormDiProva&)>> ordini;
    {
        const std::lock_guard guardia(blocco_);
        ordini.swap(ordini_);
    }
    for (const auto& ordine : ordini)
        ordine(form);
}

void Palco::Ordina(std::function<void(FormDiProva&)> azione) {
    Evento evento;
    {
        const std::lock_guard guardia(blocco_);
        ordini_.push_back(std::move(azione));
        evento.controllo = servizio_;
    }
    if (VistaFinestra* davanti = scrivania.Davanti()) evento.finestra = davanti->Identita();
    scrivania.Coda().Aggiungi(evento);
}

void Palco::NellaLogica(std::function<void(FormDiProva&)> azione) {
    const std::string giro = std::to_string(++giri_);
    Ordina([azione = std::move(azione), giro](FormDiProva& form) {
        if (azione) azione(form);
        form.servizio.ToolTipText = giro;
    });
    const Cosa servizio = Trova(scrivania, QStringLiteral("servizio"));
    Aspetta([&] { return servizio.toolTip().toStdString() == giro; });
}

Righe Palco::Diario() {
    Righe diario = DiarioIntero();
    std::erase_if(diario, [](const std::string& riga) { return riga.ends_with(" mossa"); });
    return diario;
}

Righe Palco::DiarioIntero() {
    NellaLogica({});
    const std::lock_guard guardia(blocco_);
    return std::exchange(diario_, {});
}

}  // namespace corvana::prova
