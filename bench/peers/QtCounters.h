// An object with properties of the peer whose properties are named ahead of compilation.
#pragma once

#include <QObject>

/// The same scalars as our counters of forward error correction.
class QtCounters : public QObject {
  Q_OBJECT
  Q_PROPERTY(unsigned fecCorrected READ fecCorrected WRITE setFecCorrected)
  Q_PROPERTY(unsigned fecUncorrected READ fecUncorrected WRITE setFecUncorrected)
  Q_PROPERTY(bool fecLocked READ fecLocked WRITE setFecLocked)

 public:
  unsigned fecCorrected() const { return fecCorrected_; }
  void setFecCorrected(unsigned value) { fecCorrected_ = value; }
  unsigned fecUncorrected() const { return fecUncorrected_; }
  void setFecUncorrected(unsigned value) { fecUncorrected_ = value; }
  bool fecLocked() const { return fecLocked_; }
  void setFecLocked(bool value) { fecLocked_ = value; }

 private:
  unsigned fecCorrected_ = 0;
  unsigned fecUncorrected_ = 0;
  bool fecLocked_ = false;
};
