// Tells which instant a buffer of the stream belongs to, smoothly, though the device asks for
// buffers in bursts and now and then late: a delay-locked loop over the instants of its calls.
// One caller at a time; pure.
#pragma once

namespace corvana {

class OrologioFlusso {
public:
    /// The device calls at `adesso` (monotonic, seconds) for the next `frame` frames. Returns the
    /// smoothed instant that the first of them belongs to.
    double Prossimo(double adesso, int frame);

    /// Frames each second, as the device plays them.
    double PerSecondo() const { return 1 / durataFrame_; }

    /// How long, in seconds, a message is held back so that it never comes too late for its place:
    /// a buffer and 3 ms, or what the device's bursts demand. It grows where it must and never
    /// shrinks.
    double Ritardo() const { return ritardo_; }

private:
    void Aggancia(double adesso);
    /// Goes along with a stream that has jumped by more than `soglia`: following it gently would
    /// take too long.
    void SeguiSalto(double adesso, double scarto, double soglia);
    void Segui(double scarto, double banda, int frame);

    bool agganciato_ = false;
    double aggancio_ = 0;     ///< when it locked on
    double previsto_ = 0;     ///< smoothed instant of the next call
    double durataFrame_ = 0;  ///< seconds
    double ritardo_ = 0;
    double vicino_ = 0;  ///< when a call last came about when it was expected
    double salto_ = 0;   ///< the least that the calls since then were off by, 0 for none
};

}  // namespace corvana
