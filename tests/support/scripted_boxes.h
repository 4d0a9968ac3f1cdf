// Boxes that write down what they say and are answered from a script.
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "forms/boxes.h"

namespace corvana::prova {

class RiquadriDaCopione final : public Riquadri {
public:
    std::vector<std::string> messaggi;
    std::deque<bool> risposte;  ///< to questions; none left is No
    std::deque<std::optional<std::string>> testi;
    std::vector<std::string> titoli, proposte;  ///< of the input boxes
    /// What happens while a message or input box is up.
    std::function<void(const std::string&)> durante;

    void MsgBox(const std::string& testo) override {
        messaggi.push_back(testo);
        if (durante) durante(testo);
    }
    bool Domanda(const std::string& testo) override {
        messaggi.push_back(testo);
        return Prossimo(risposte, false);
    }
    std::optional<std::string> InputBox(const std::string& testo, const std::string& titolo,
                                        const std::string& proposta) override {
        messaggi.push_back(testo);
        titoli.push_back(titolo);
        proposte.push_back(proposta);
        if (durante) durante(testo);
        return Prossimo(testi, std::optional<std::string>());
    }

private:
    template <class T>
    static T Prossimo(std::deque<T>& coda, T altrimenti) {
        if (coda.empty()) return altrimenti;
        T primo = coda.front();
        coda.pop_front();
        return primo;
    }
};

}  // namespace corvana::prova
