#pragma once

#include <QAbstractNativeEventFilter>
#include <QByteArray>
#include <QWidget>
#include <functional>

namespace zelvo {

/// Tells of windows that the X server no longer has, as when another program destroyed them. The
/// toolkit takes no notice of that.
class LostWindowWatch : public QAbstractNativeEventFilter {
 public:
  /// `lost` also hears of windows that the toolkit itself has destroyed and forgotten.
  explicit LostWindowWatch(std::function<void(WId)> lost) : lost_(std::move(lost)) {}
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 private:
  std::function<void(WId)> lost_;
};

}  // namespace zelvo
