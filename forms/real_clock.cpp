#include "forms/real_clock.h"

#include <cerrno>
#include <cmath>
#include <ctime>

namespace corvana {

namespace {

constexpr double nanosecondi = 1e9;

double Leggi(clockid_t orologio) {
    timespec ora{};
    clock_gettime(orologio, &ora);
    return static_cast<double>(ora.tv_sec) + static_cast<double>(ora.tv_nsec) / nanosecondi;
}

timespec InTimespec(double secondi) {
    const double interi = std::floor(secondi);
    return {static_cast<time_t>(interi), static_cast<long>((secondi - interi) * nanosecondi)};
}

}  // namespace

double OrologioReale::Adesso() const {
    return Leggi(CLOCK_MONOTONIC);
}

double OrologioReale::Calcolato() const {
    return Leggi(CLOCK_THREAD_CPUTIME_ID);
}

int OrologioReale::OraDelGiorno() const {
    const std::time_t adesso = std::time(nullptr);
    std::tm locale{};
    localtime_r(&adesso, &locale);
    return locale.tm_hour * 3600 + locale.tm_min * 60 + locale.tm_sec % 60;
}

void OrologioReale::AspettaFino(double fino) {
    const timespec istante = InTimespec(fino);
    while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &istante, nullptr) == EINTR) {}
}

void OrologioReale::AspettaFine(CodaEventi& coda, double fino) {
    coda.AspettaFine(fino);
}

void OrologioReale::AspettaEvento(CodaEventi& coda, double fino) {
    coda.Aspetta(fino);
}

}  // namespace corvana
