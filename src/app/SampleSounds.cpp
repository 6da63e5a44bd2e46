#include "app/SampleSounds.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>
#include <vector>

#include "appointments/SoundNames.h"

namespace quill {
namespace {

constexpr quint32 kRate = 22'050;  // samples a second
constexpr double kPeak = 0.6 * 32'767;
constexpr double kAttack = 0.004;  // seconds, without which a tone begins with a click

// A tone that is struck and dies away.
struct Tone {
  double Start;  // seconds
  double Frequency;
  double Strength;  // against the other tones
  double Decay;     // seconds until it has a third of its strength
};

constexpr auto kAlarm = std::to_array<Tone>(
    {{0.00, 880, 1, 0.05}, {0.13, 1108.7, 1, 0.05}, {0.26, 880, 1, 0.05}, {0.39, 1108.7, 1, 0.05}});
// A bell's partials do not lie at whole multiples.
constexpr auto kBell = std::to_array<Tone>(
    {{0, 660, 1, 0.20}, {0, 1320, 0.6, 0.15}, {0, 1821.6, 0.4, 0.10}, {0, 3564, 0.2, 0.05}});
constexpr auto kChime = std::to_array<Tone>({{0.00, 784, 1, 0.15}, {0.22, 659.3, 1, 0.18}});
constexpr auto kMarimba = std::to_array<Tone>({{0.00, 523.3, 1, 0.07},
                                               {0.00, 2093, 0.3, 0.03},
                                               {0.15, 659.3, 1, 0.07},
                                               {0.15, 2637, 0.3, 0.03},
                                               {0.30, 784, 1, 0.09},
                                               {0.30, 3136, 0.3, 0.03}});

struct SampleSound {
  QStringView Name;
  double Length;  // seconds
  std::span<const Tone> Tones;
};
constexpr auto kSounds = std::to_array<SampleSound>({{u"Alarm1.wav", 0.65, kAlarm},
                                                     {u"Bell.wav", 0.95, kBell},
                                                     {u"Chime.wav", 0.90, kChime},
                                                     {u"Marimba.wav", 0.70, kMarimba}});

double ToneAt(const Tone& tone, double time) {
  const double age = time - tone.Start;
  if (age < 0) return 0;
  const double rise = std::min(age / kAttack, 1.0);
  return tone.Strength * rise * std::exp(-age / tone.Decay) *
         std::sin(2 * std::numbers::pi * tone.Frequency * age);
}

// What is left of a tone at the end is faded out.
std::vector<double> Wave(const SampleSound& sound) {
  std::vector<double> wave(static_cast<std::size_t>(sound.Length * kRate));
  for (std::size_t i = 0; i < wave.size(); ++i) {
    const double time = static_cast<double>(i) / kRate;
    for (const Tone& tone : sound.Tones) wave[i] += ToneAt(tone, time);
    wave[i] *= 1 - time / sound.Length;
  }
  return wave;
}

template <typename Number>
void Append(QByteArray& bytes, Number number) {
  const Number little = qToLittleEndian(number);
  bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

// 16 bits, one channel.
QByteArray WaveHeader(quint32 dataSize) {
  constexpr quint16 kSampleSize = 2;
  QByteArray bytes("RIFF");
  Append<quint32>(bytes, 36 + dataSize);
  bytes += "WAVEfmt ";
  Append<quint32>(bytes, 16);
  Append<quint16>(bytes, 1);  // plain samples
  Append<quint16>(bytes, 1);
  Append<quint32>(bytes, kRate);
  Append<quint32>(bytes, kRate * kSampleSize);
  Append<quint16>(bytes, kSampleSize);
  Append<quint16>(bytes, 8 * kSampleSize);
  bytes += "data";
  Append<quint32>(bytes, dataSize);
  return bytes;
}

QByteArray WaveFile(const SampleSound& sound) {
  const std::vector<double> wave = Wave(sound);
  const double loudest = std::abs(*std::max_element(
      wave.begin(), wave.end(), [](double a, double b) { return std::abs(a) < std::abs(b); }));
  QByteArray samples;
  for (const double value : wave) Append(samples, static_cast<qint16>(value / loudest * kPeak));
  return WaveHeader(static_cast<quint32>(samples.size())) + samples;
}

}  // namespace

void MakeSampleSounds(DeviceFiles& files) {
  if (files.CreateFolder(kSoundFolder.toString()) != 0) return;
  for (const SampleSound& sound : kSounds)
    files.WriteWhole(SoundPath(sound.Name.toString()), WaveFile(sound));
}

}  // namespace quill
