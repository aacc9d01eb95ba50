// The water properties on the hot path of the gas update along the line: every element of a steam line asks for
// the density and viscosity at its pressure and temperature.
#include <benchmark/benchmark.h>

#include "properties/if97.h"
#include "properties/viscosity85.h"
#include "properties/water_state.h"

namespace {

using namespace linecalc;

void Region1Density(benchmark::State& bench) {
  Real T = 293.15L;
  for (auto _ : bench) {
    benchmark::DoNotOptimize(T);
    benchmark::DoNotOptimize(Rechne_Dichte_Bereich1(T, 10));
  }
}
BENCHMARK(Region1Density);

void Region2Density(benchmark::State& bench) {
  Real T = 573.15L;
  for (auto _ : bench) {
    benchmark::DoNotOptimize(T);
    benchmark::DoNotOptimize(Rechne_Dichte_Bereich2(T, 10));
  }
}
BENCHMARK(Region2Density);

// Region 3 by its iteration: a supercritical state, a liquid near saturation whose iterated root is replaced
// by the physical one, and a state near the critical point.
void Region3Density(benchmark::State& bench, Real T, Real p) {
  for (auto _ : bench) {
    benchmark::DoNotOptimize(T);
    benchmark::DoNotOptimize(Rechne_Dichte_Bereich3(T, p));
  }
}
BENCHMARK_CAPTURE(Region3Density, supercritical_673K_300bar, 673.15L, 300);
BENCHMARK_CAPTURE(Region3Density, rescued_630K_225bar, 630, 225);
BENCHMARK_CAPTURE(Region3Density, near_critical_647K_221bar, 647, 221);

void Region5Density(benchmark::State& bench) {
  Real T = 1273.15L;
  for (auto _ : bench) {
    benchmark::DoNotOptimize(T);
    benchmark::DoNotOptimize(Rechne_Dichte_Bereich5(T, 10));
  }
}
BENCHMARK(Region5Density);

void Viscosity(benchmark::State& bench) {
  Real T = 293.15L;
  for (auto _ : bench) {
    benchmark::DoNotOptimize(T);
    benchmark::DoNotOptimize(Rechne_Visko(T, 998.2L));
  }
}
BENCHMARK(Viscosity);

void SaturationPressure(benchmark::State& bench) {
  Real T = 373.15L;
  for (auto _ : bench) {
    benchmark::DoNotOptimize(T);
    benchmark::DoNotOptimize(Rechne_Dampfdruck(T));
  }
}
BENCHMARK(SaturationPressure);

// The whole state as the gas update asks for it: region rules, density and viscosity.
void WholeStateOfSteam(benchmark::State& bench) {
  Real p = 10;
  for (auto _ : bench) {
    benchmark::DoNotOptimize(p);
    benchmark::DoNotOptimize(waterState(p, 573.15L));
  }
}
BENCHMARK(WholeStateOfSteam);

}  // namespace
