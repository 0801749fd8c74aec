// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Writes the three reminder sounds into a folder: MakeClips FOLDER
// Every note is summed from decaying sine partials, and all three clips get the same loudness.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <string>
#include <vector>

namespace {

constexpr double SampleRate = 44100.0;
constexpr double LeadSeconds = 0.02;
constexpr double AttackSeconds = 0.005;
constexpr double ReleaseSeconds = 0.16;
constexpr double TargetLoudness = -20.0;  // LUFS
constexpr double PeakCeiling = -3.0;      // dBFS
constexpr double ReverbLevel = 0.16;

using Sound = std::vector<double>;

// One sine of a timbre: its frequency as a multiple of the note's, its level, and the seconds it takes
// to fall to 37 % at middle A.
struct Partial
{
  double ratio;
  double level;
  double decay;
};

using Voice = std::array<Partial, 5>;
constexpr Voice MusicBox = {{{1.0, 1.0, 0.8}, {2.0, 0.3, 0.5}, {3.0, 0.1, 0.25}, {4.0, 0.12, 0.12}, {6.3, 0.05, 0.04}}};
constexpr Voice Celesta = {{{1.0, 1.0, 1.1}, {2.0, 0.38, 0.7}, {3.0, 0.16, 0.4}, {4.0, 0.12, 0.25}, {5.0, 0.04, 0.12}}};
constexpr Voice Bell = {{{1.0, 1.0, 1.3}, {2.0, 0.35, 0.8}, {2.99, 0.12, 0.5}, {4.07, 0.10, 0.3}, {5.43, 0.05, 0.12}}};
constexpr Voice Marimba = {{{1.0, 1.0, 0.6}, {2.0, 0.1, 0.35}, {4.0, 0.16, 0.1}, {6.8, 0.02, 0.04}, {9.2, 0.02, 0.03}}};

// Times are in beats from the start of the clip; a key is a number (69 = A, 440 Hz).
struct Chord
{
  double beat;
  double length;
  double level;
  std::vector<int> keys;
};

struct Part
{
  Voice voice;
  std::vector<Chord> chords;
};

struct Clip
{
  std::string file;
  double beatSeconds;
  double seconds;
  double fadeSeconds;
  std::vector<Part> parts;
};

std::size_t SamplesIn(double seconds)
{
  return static_cast<std::size_t>(std::lround(seconds * SampleRate));
}

// Half a cosine wave: rises smoothly from 0 to 1 while position goes from 0 to 1.
double SmoothStep(double position)
{
  return 0.5 - 0.5 * std::cos(std::numbers::pi * std::clamp(position, 0.0, 1.0));
}

// The greeting song of 1893, its first two phrases, in G major over a waltz bass.
Clip BirthdayClip()
{
  const std::vector<Chord> melody = {{0, 1, 0.8, {74}}, {1, 1, 1.0, {76}}, {2, 1, 0.9, {74}}, {3, 1, 1.0, {79}},
                                     {4, 2, 1.0, {78}}, {6, 1, 0.8, {74}}, {7, 1, 1.0, {76}}, {8, 1, 0.9, {74}},
                                     {9, 1, 1.0, {81}}, {10, 4, 1.0, {79}}};
  const std::vector<Chord> bass = {{1, 1, 0.55, {55}},   {2, 1, 0.3, {59, 62}}, {3, 1, 0.3, {59, 62}},
                                   {4, 1, 0.55, {50}},   {5, 1, 0.3, {60, 66}}, {6, 1, 0.3, {60, 66}},
                                   {7, 1, 0.55, {54}},   {8, 1, 0.3, {60, 62}}, {9, 1, 0.3, {60, 62}},
                                   {10, 4, 0.55, {55}},  {11, 3, 0.35, {59}},   {11.25, 3, 0.35, {62}},
                                   {11.5, 3, 0.35, {67}}};
  return {"hapbirth.wav", 0.37, 5.8, 0.9, {{MusicBox, melody}, {Marimba, bass}}};
}

// The fanfare and the first bars of Mendelssohn's Wedding March, fading out on the closing chord.
Clip WeddingClip()
{
  constexpr double third = 1.0 / 3.0;
  const std::vector<Chord> melody = {{0, third, 0.6, {72}},
                                     {third, third, 0.6, {72}},
                                     {2 * third, third, 0.65, {72}},
                                     {1, 1, 0.8, {72}},
                                     {2, third, 0.45, {72, 76, 79}},
                                     {2 + third, third, 0.45, {72, 76, 79}},
                                     {2 + 2 * third, third, 0.5, {72, 76, 79}},
                                     {3, 2, 1.0, {84}},
                                     {5, 1.5, 1.0, {83}},
                                     {6.5, 0.5, 0.9, {78}},
                                     {7, 1, 1.0, {81}},
                                     {8, 1, 0.9, {79}},
                                     {9, 1, 0.9, {77}},
                                     {10, 1, 0.9, {74}},
                                     {11, 4, 1.0, {72}}};
  const std::vector<Chord> chords = {
      {1, 1, 0.4, {64, 67}},      {3, 2, 0.5, {57}},  {3, 2, 0.33, {64, 69, 72, 78}}, {5, 2, 0.5, {59}},
      {5, 2, 0.33, {63, 66, 69}}, {7, 2, 0.55, {52}}, {7, 2, 0.33, {59, 67, 71}},     {9, 2, 0.55, {53}},
      {9, 2, 0.33, {57, 65, 69}}, {11, 4, 0.6, {48}}, {11, 4, 0.38, {55, 64, 67}}};
  return {"wmfade2.wav", 0.40, 6.0, 1.8, {{Celesta, melody}, {Celesta, chords}}};
}

// A chime of our own: two answering bell figures over a soft bass.
Clip EventClip()
{
  const std::vector<Chord> melody = {{0, 1, 0.9, {76}}, {1, 1, 0.9, {81}}, {2, 2, 1.0, {85}},
                                     {4, 1, 0.8, {83}}, {5, 1, 0.8, {78}}, {6, 6, 1.0, {81}}};
  const std::vector<Chord> bass = {{0, 4, 0.5, {57}},  {2, 2, 0.35, {64}}, {4, 2, 0.5, {52}},
                                   {4, 2, 0.35, {62}}, {6, 6, 0.5, {57}},  {6, 6, 0.35, {64, 73}}};
  return {"jad0044.wav", 0.21, 3.2, 0.9, {{Bell, melody}, {Marimba, bass}}};
}

// Adds one partial of a note; its ratio is the frequency in hertz by now.
void AddPartial(Sound& sound, std::size_t start, double hold, const Partial& partial)
{
  const std::size_t count = std::min(SamplesIn(hold + ReleaseSeconds), sound.size() - start);
  for (std::size_t index = 0; index < count; ++index) {
    const double time = static_cast<double>(index) / SampleRate;
    const double envelope = SmoothStep(time / AttackSeconds) * std::exp(-time / partial.decay) *
                            SmoothStep((hold + ReleaseSeconds - time) / ReleaseSeconds);
    sound[start + index] += partial.level * envelope * std::sin(2.0 * std::numbers::pi * partial.ratio * time);
  }
}

// High notes die away sooner than low ones, as on a real instrument.
void AddNote(Sound& sound, const Chord& chord, int key, const Voice& voice, double beatSeconds)
{
  const double frequency = 440.0 * std::exp2((key - 69) / 12.0);
  const std::size_t start = std::min(SamplesIn(LeadSeconds + chord.beat * beatSeconds), sound.size());
  for (const Partial& partial : voice) {
    const double decay = partial.decay * std::sqrt(440.0 / frequency);
    const Partial sine = {frequency * partial.ratio, chord.level * partial.level, decay};
    AddPartial(sound, start, chord.length * beatSeconds, sine);
  }
}

// A feedback delay; as an all-pass it keeps the spectrum and only smears the time.
Sound Echo(const Sound& input, std::size_t delay, double feedback, bool allPass)
{
  Sound output(input.size(), 0.0);
  for (std::size_t index = 0; index < input.size(); ++index) {
    const double late = index < delay ? 0.0 : output[index - delay];
    const double before = index < delay ? 0.0 : input[index - delay];
    output[index] = before + feedback * (allPass ? late - input[index] : late);
  }
  return output;
}

// Four parallel echoes and two all-passes in a row give a small room.
void AddReverb(Sound& sound)
{
  Sound room(sound.size(), 0.0);
  for (const std::size_t delay : {1427U, 1637U, 1811U, 1987U}) {
    const Sound echo = Echo(sound, delay, 0.72, false);
    for (std::size_t index = 0; index < room.size(); ++index)
      room[index] += echo[index];
  }
  room = Echo(Echo(room, 347, 0.6, true), 113, 0.6, true);
  for (std::size_t index = 0; index < room.size(); ++index)
    sound[index] += ReverbLevel * room[index];
}

Sound Render(const Clip& clip)
{
  Sound sound(SamplesIn(clip.seconds), 0.0);
  for (const Part& part : clip.parts)
    for (const Chord& chord : part.chords)
      for (const int key : chord.keys)
        AddNote(sound, chord, key, part.voice, clip.beatSeconds);
  AddReverb(sound);
  const double fade = clip.fadeSeconds * SampleRate;
  for (std::size_t index = 0; index < sound.size(); ++index)
    sound[index] *= SmoothStep(static_cast<double>(sound.size() - 1 - index) / fade);
  return sound;
}

// A filter with two poles and two zeros; its denominator starts with 1.
struct Biquad
{
  std::array<double, 3> ahead;
  std::array<double, 2> back;
};

// The gains are those far above, around and far below the frequency.
Biquad MakeBiquad(double frequency, double quality, const std::array<double, 3>& gains)
{
  const double warp = std::tan(std::numbers::pi * frequency / SampleRate);
  const double damping = warp / quality;
  const double square = warp * warp;
  const double scale = 1.0 + damping + square;
  const double outer = gains[0] + gains[2] * square;
  return {{(outer + gains[1] * damping) / scale, 2.0 * (gains[2] * square - gains[0]) / scale,
           (outer - gains[1] * damping) / scale},
          {2.0 * (square - 1.0) / scale, (1.0 - damping + square) / scale}};
}

Sound Filter(const Sound& input, const Biquad& biquad)
{
  Sound output(input.size(), 0.0);
  std::array<double, 4> past = {};
  for (std::size_t index = 0; index < input.size(); ++index) {
    output[index] = biquad.ahead[0] * input[index] + biquad.ahead[1] * past[0] + biquad.ahead[2] * past[1] -
                    biquad.back[0] * past[2] - biquad.back[1] * past[3];
    past = {input[index], past[0], output[index], past[2]};
  }
  return output;
}

// The power of each 400 ms block, a new one every 100 ms, weighted as the ear does: the treble is
// lifted by 4 dB, and what is too low to sound loud is cut.
std::vector<double> BlockPowers(const Sound& sound)
{
  const Biquad treble = MakeBiquad(1681.97, 0.70718, {1.58486, 1.25872, 1.0});
  const Biquad rumble = MakeBiquad(38.1355, 0.50033, {1.0, 0.0, 0.0});
  const Sound weighted = Filter(Filter(sound, treble), rumble);
  const std::size_t block = SamplesIn(0.4);
  std::vector<double> powers;
  for (std::size_t start = 0; start + block <= weighted.size(); start += block / 4) {
    double sum = 0.0;
    for (std::size_t index = start; index < start + block; ++index)
      sum += weighted[index] * weighted[index];
    powers.push_back(sum / static_cast<double>(block));
  }
  return powers;
}

double MeanAbove(const std::vector<double>& powers, double gate)
{
  double sum = 0.0;
  double count = 0.0;
  for (const double power : powers) {
    sum += power > gate ? power : 0.0;
    count += power > gate ? 1.0 : 0.0;
  }
  return count > 0.0 ? sum / count : 0.0;
}

// The loudness of the whole clip in LUFS; quiet blocks do not count.
double Loudness(const Sound& sound)
{
  const std::vector<double> powers = BlockPowers(sound);
  const double silence = std::pow(10.0, (-70.0 + 0.691) / 10.0);
  const double gate = std::max(silence, 0.1 * MeanAbove(powers, silence));
  return -0.691 + 10.0 * std::log10(MeanAbove(powers, gate));
}

void Put(std::string& bytes, std::uint32_t value, int count)
{
  for (int index = 0; index < count; ++index)
    bytes.push_back(static_cast<char>((value >> (8 * index)) & 0xFFU));
}

// A 16-bit mono WAV file as bytes.
std::string WavBytes(const Sound& sound, double gain)
{
  const auto size = static_cast<std::uint32_t>(sound.size() * 2);
  constexpr auto rate = static_cast<std::uint32_t>(SampleRate);
  std::string bytes = "RIFF";
  Put(bytes, 36 + size, 4);
  bytes += "WAVEfmt ";
  for (const std::uint32_t word : {16U, 0x00010001U, rate, rate * 2, 0x00100002U})
    Put(bytes, word, 4);
  bytes += "data";
  Put(bytes, size, 4);
  for (const double value : sound)
    Put(bytes, static_cast<std::uint32_t>(std::lround(32767.0 * gain * value)), 2);
  return bytes;
}

bool Write(const std::filesystem::path& path, const std::string& bytes)
{
  std::ofstream file(path, std::ios::binary);
  file << bytes << std::flush;
  return file.good();
}

}  // namespace

int main(int argc, char** argv)
{
  if (argc != 2) {
    std::fprintf(stderr, "usage: MakeClips FOLDER\n");
    return 2;
  }
  for (const Clip& clip : {BirthdayClip(), WeddingClip(), EventClip()}) {
    const Sound sound = Render(clip);
    const double gain = std::pow(10.0, (TargetLoudness - Loudness(sound)) / 20.0);
    const auto [lowest, highest] = std::minmax_element(sound.begin(), sound.end());
    const double peak = 20.0 * std::log10(gain * std::max(-*lowest, *highest));
    const std::filesystem::path path = std::filesystem::path(argv[1]) / clip.file;
    if (peak > PeakCeiling || !Write(path, WavBytes(sound, gain))) {
      std::fprintf(stderr, "MakeClips: %s cannot be written or is too loud\n", path.c_str());
      return 1;
    }
    std::printf("%s: %.2f s, %.1f LUFS, peak %.2f dBFS\n", clip.file.c_str(), clip.seconds, TargetLoudness, peak);
  }
  return 0;
}
