#pragma once

#include <QByteArray>
#include <QString>
#include <chrono>
#include <optional>

namespace zelvo {

/// A sound as a wave file holds it: uncompressed samples.
struct WaveFile {
  int channels = 0;
  int samplesPerSecond = 0;
  int bitsPerSample = 0;  ///< 8 or 16
  QByteArray samples;     ///< whole frames

  /// A frame is what sounds at one time: a sample for each channel.
  int BytesPerFrame() const { return channels * bitsPerSample / 8; }
  /// How long the game waits for it at most: its length, but never more than ten seconds.
  std::chrono::milliseconds LongestWait() const;
};

/// Reads a wave file; nothing if it is missing, no regular
/// file, broken, compressed or silent for lack of samples.
std::optional<WaveFile> ReadWaveFile(const QString& path);

}  // namespace zelvo
