// Message, question and input boxes. Each call comes on the logic thread and blocks it until the
// box is answered; nothing else is delivered meanwhile.
#pragma once

#include <optional>
#include <string>

namespace corvana {

class Riquadri {
public:
    Riquadri() = default;
    Riquadri(const Riquadri&) = delete;
    Riquadri& operator=(const Riquadri&) = delete;
    virtual ~Riquadri() = default;

    virtual void MsgBox(const std::string& testo) = 0;
    /// True for Yes.
    virtual bool Domanda(const std::string& testo) = 0;
    /// Nothing when the box was cancelled.
    virtual std::optional<std::string> InputBox(const std::string& testo, const std::string& titolo,
                                                const std::string& proposta) = 0;
};

}  // namespace corvana
