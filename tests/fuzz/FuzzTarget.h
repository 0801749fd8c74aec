// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>

// What a fuzzer calls with each of its inputs: anything but a return is a finding. The
// fuzzer of the compiler brings a main of its own, CorpusRun.cpp is the one for tests.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

inline QByteArray InputFrom(const std::uint8_t* data, std::size_t size)
{
  return {reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)};
}
