// SPDX-License-Identifier: MIT
//
// C++ callables as the platform's blocks, and the platform's blocks as C++ callables.
#pragma once

#include <new>
#include <utility>

#include "bridge/block_layout.h"
#include "bridge/guard.h"
#include "bridge/runtime/encoding.h"

namespace bridge {

template <typename Signature>
class Block;

// A block, or none. It lives on the heap and is shared: whoever receives it copies and releases it
// as any block, and what the callable captured goes with the last copy.
//
//   view.animate(0.25, Block<void()>([view] { view.setAlpha(1); }));
template <typename R, typename... Arguments>
class Block<R(Arguments...)> {
 public:
  constexpr Block() = default;

  // An exception of the callable does not reach the block's caller: it is logged, and the caller
  // gets zero.
  template <std::invocable<Arguments...> Callable>
  requires(!std::same_as<Callable, Block>) explicit Block(Callable callable)
      : _header(copyToHeap(std::move(callable))) {}

  // Shares a block that somebody else made.
  static Block retain(const BlockHeader* header) {
    return Block(static_cast<const BlockHeader*>(_Block_copy(header)));
  }

  Block(const Block& other) : Block(retain(other._header)) {}
  Block(Block&& other) noexcept : _header(std::exchange(other._header, nullptr)) {}
  Block& operator=(Block other) noexcept {
    std::swap(_header, other._header);
    return *this;
  }
  ~Block() { _Block_release(_header); }

  explicit operator bool() const { return _header != nullptr; }
  const BlockHeader* get() const { return _header; }

  // Calls the block; no block does nothing and answers zero.
  R operator()(Arguments... arguments) const {
    if (!_header) return R();
    using Invoke = Lowered<R> (*)(const BlockHeader*, Lowered<Arguments>...);
    const auto invoke = reinterpret_cast<Invoke>(_header->invoke);
    if constexpr (std::is_void_v<R>) {
      invoke(_header, Abi<Arguments>::lower(arguments)...);
    } else {
      return Abi<R>::raise(invoke(_header, Abi<Arguments>::lower(arguments)...));
    }
  }

 private:
  explicit Block(const BlockHeader* header) : _header(header) {}

  template <typename Callable>
  struct Literal {
    BlockHeader header;
    Callable callable;

    static Lowered<R> invoke(const BlockHeader* block, Lowered<Arguments>... arguments) {
      const Callable& stored = reinterpret_cast<const Literal*>(block)->callable;
      return guardedMethod([&]() -> Lowered<R> {
        if constexpr (std::is_void_v<R>) {
          stored(Abi<Arguments>::raise(arguments)...);
        } else {
          return Abi<R>::lower(stored(Abi<Arguments>::raise(arguments)...));
        }
      });
    }
    // The bytes are there already; the callable is made anew over its own.
    static void copy(void* target, const void* source) {
      ::new (&static_cast<Literal*>(target)->callable)
          Callable(static_cast<const Literal*>(source)->callable);
    }
    static void dispose(const void* block) {
      const_cast<Literal*>(static_cast<const Literal*>(block))->callable.~Callable();
    }
  };

  static constexpr auto signature =
      ((Encoding<Lowered<R>>::text + FixedString("@?")) + ... + Encoding<Lowered<Arguments>>::text);

  template <typename Callable>
  static const BlockHeader* copyToHeap(Callable callable) {
    using Stored = Literal<Callable>;
    static constexpr BlockDescriptor descriptor = {0, sizeof(Stored), &Stored::copy,
                                                   &Stored::dispose, signature.text};
    const Stored literal = {{_NSConcreteStackBlock, blockHasCopyAndDispose | blockHasSignature, 0,
                             reinterpret_cast<void (*)()>(&Stored::invoke), &descriptor},
                            std::move(callable)};
    return static_cast<const BlockHeader*>(_Block_copy(&literal));
  }

  const BlockHeader* _header = nullptr;
};

template <typename Signature>
struct Abi<Block<Signature>> {
  using Type = const BlockHeader*;
  static Type lower(const Block<Signature>& block) { return block.get(); }
  static Block<Signature> raise(Type header) { return Block<Signature>::retain(header); }
};

template <>
struct Encoding<const BlockHeader*> {
  static constexpr FixedString text = "@?";
};

}  // namespace bridge
