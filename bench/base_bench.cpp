// Reading typed numbers and converting their units happen for every field of every calculation.
#include <benchmark/benchmark.h>

#include "base/numbers.h"
#include "base/units.h"

namespace {

void ReadTypedNumber(benchmark::State& state) {
  for (auto _ : state) {
    bool werteingabe = true;
    benchmark::DoNotOptimize(linecalc::Zahl_lesen("1 000,5", werteingabe));
  }
}
BENCHMARK(ReadTypedNumber);

void ConvertPressureTableSpelling(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(linecalc::Umre_Druck("psia", "bar", 14.7L));
}
BENCHMARK(ConvertPressureTableSpelling);

void ConvertVolumeFlowRaisedDigits(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(linecalc::Umre_Volumenstrom("cu.ft./hr", "m³/h", 100.0L));
}
BENCHMARK(ConvertVolumeFlowRaisedDigits);

}  // namespace
