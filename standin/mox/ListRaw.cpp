// Linking and unlinking of notifiees.
#include "Mox/ListRaw.h"

namespace Mox {

void BaseCollection::linkHead(Member* member) noexcept {
  member->next_ = head_;
  head_ = member;
  if (!tail_) tail_ = member;
  ++changes_;
  ++count_;
}

void BaseCollection::linkTail(Member* member) noexcept {
  member->next_ = nullptr;
  (tail_ ? tail_->next_ : head_) = member;
  tail_ = member;
  ++changes_;
  ++count_;
}

bool BaseCollection::unlink(Member* member) noexcept {
  Member* before = nullptr;
  for (Member* at = head_; at; before = at, at = at->next_) {
    if (at != member) continue;
    (before ? before->next_ : head_) = member->next_;
    if (tail_ == member) tail_ = before;
    member->next_ = nullptr;
    ++changes_;
    --count_;
    return true;
  }
  return false;
}

void BaseCollection::clear() noexcept {
  Member* at = head_;
  head_ = tail_ = nullptr;
  count_ = 0;
  ++changes_;
  while (at) {
    Ptr<Member> const held = at;
    at = at->next_;
    held->next_ = nullptr;
  }
}

}  // namespace Mox
