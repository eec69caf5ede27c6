// The list of an entity's notifiees.
#pragma once

#include "Mox/Notifiee.h"

#include <cstddef>

namespace Mox {

/// A singly linked list of notifiees with a raw link in each: it owns no references.  Every link
/// and unlink adds one to the change counter.
class BaseCollection {
 public:
  using Member = PtrInterface::NotifieeConst;

  BaseCollection() = default;
  BaseCollection(BaseCollection const&) = delete;
  BaseCollection& operator=(BaseCollection const&) = delete;

  U32 changes() const noexcept { return changes_; }
  U32 count() const noexcept { return count_; }
  bool empty() const noexcept { return head_ == nullptr; }
  Member* head() const noexcept { return head_; }
  /// Whether any member hears.  Linear in those that don't, ahead of the first that does.
  bool anyHears() const noexcept {
    Member const* at = head_;
    while (at && !at->moxHears()) at = at->next_;
    return at != nullptr;
  }
  /// The same, but that several are taken to hear: for each mutator asks this first.
  bool anyMayHear() const noexcept { return head_ && (head_->moxHears() || head_->next_); }
  static Member* next(Member const* member) noexcept { return member->next_; }

  void linkHead(Member* member) noexcept;
  void linkTail(Member* member) noexcept;
  /// Walks from the head; false, and nothing done, for one that isn't in the list.
  bool unlink(Member* member) noexcept;
  /// Clears each member's link, holding the member for a moment, and the list.
  void clear() noexcept;

 private:
  U32 changes_ = 0;
  U32 count_ = 0;
  Member* head_ = nullptr;
  Member* tail_ = nullptr;
};

/// A collection of references to `T`, which it doesn't own.
template <class T>
class BaseRefCollection : public BaseCollection {};

/// The typed face of a notifiee list.
template <class T>
class ListRaw : public BaseRefCollection<T> {
 public:
  /// Walks the list, which mustn't change meanwhile.
  class LrIterator {
   public:
    explicit LrIterator(ListRaw const& list) : at_(list.head()) {}
    explicit operator bool() const noexcept { return at_ != nullptr; }
    T* operator->() const { return ptr(); }
    T* ptr() const { return static_cast<T*>(at_); }
    LrIterator& operator++() noexcept {
      at_ = BaseCollection::next(at_);
      return *this;
    }

   private:
    BaseCollection::Member* at_;
  };

  /// The same, for readers.
  class LrIteratorConst {
   public:
    explicit LrIteratorConst(ListRaw const& list) : at_(list.head()) {}
    explicit operator bool() const noexcept { return at_ != nullptr; }
    T const* operator->() const { return ptr(); }
    T const* ptr() const { return static_cast<T const*>(at_); }
    LrIteratorConst& operator++() noexcept {
      at_ = BaseCollection::next(at_);
      return *this;
    }

   private:
    BaseCollection::Member const* at_;
  };
};

}  // namespace Mox
