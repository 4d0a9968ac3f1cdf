#include "tests/desktop/keyboard_stage.h"

#include "forms/real_clock.h"
#include "forms/windows.h"

namespace corvana::prova {

PalcoTastiera::PalcoTastiera() {
    scrivania.Avvia([this] { Logica(); });
    AspettaFinestra(scrivania, QStringLiteral("FormTastiera"));
}

void PalcoTastiera::Logica() {
    OrologioReale orologio;
    Pompa pompa(orologio, scrivania.Coda());
    Finestre finestre(pompa, scrivania.Riquadri(), &scrivania.Schermo());
    FormTastiera form([this](std::string riga) {
        const std::lock_guard guardia(blocco_);
        diario_.push_back(std::move(riga));
    });
    form.accanto.Click = [this, &form] {
        std::function<void(FormTastiera&)> ordine;
        {
            const std::lock_guard guardia(blocco_);
            ordine = std::exchange(ordine_, {});
        }
        if (ordine) ordine(form);
    };
    finestre.Mostra(form);
    finestre.FinoAllUltima();
}

void PalcoTastiera::NellaLogica(std::function<void(FormTastiera&)> azione) {
    const std::string giro = std::to_string(++giri_);
    {
        const std::lock_guard guardia(blocco_);
        ordine_ = [azione = std::move(azione), giro](FormTastiera& form) {
            if (azione) azione(form);
            form.accanto.ToolTipText = giro;
        };
    }
    const Cosa accanto = Trova(scrivania, QStringLiteral("accanto"));
    accanto.LaVista().Manda(Fatto::Click);
    Aspetta([&] { return accanto.toolTip().toStdString() == giro; });
}

Righe PalcoTastiera::Diario() {
    NellaLogica({});
    const std::lock_guard guardia(blocco_);
    return std::exchange(diario_, {});
}

}  // namespace corvana::prova
