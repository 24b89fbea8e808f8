// The ordered record list of the game database, with a cursor. Searches run from the head and
// the first match wins.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/DataObject.h"

struct CDataListNode {
    explicit CDataListNode(std::unique_ptr<CDataObject> payload) : m_pPayload(std::move(payload)) {}

    int m_nIndex = 0;
    CDataListNode* m_pPrev = nullptr;
    CDataListNode* m_pNext = nullptr;
    std::unique_ptr<CDataObject> m_pPayload;
};

class CDataList {
public:
    // A list may keep an index by a text key of its records (a type's name, a weapon's name),
    // so that the first-match search by that key does not walk the list. The index is kept in
    // step by PushBack and PushFront; a record's key must not change while it is in the list.
    using KeyOf = std::string_view (*)(const CDataObject&);

    explicit CDataList(KeyOf keyOf = nullptr) : m_keyOf(keyOf) {}
    ~CDataList() { Clear(); }
    CDataList(const CDataList&) = delete;
    CDataList& operator=(const CDataList&) = delete;

    void Init();
    void PushBack(std::unique_ptr<CDataObject> payload);
    void PushFront(std::unique_ptr<CDataObject> payload);
    // Takes the last record out again (a record given up after its file could not be written);
    // none when the list is empty. Only for a list without a key, whose index never forgets a
    // record.
    std::unique_ptr<CDataObject> PopBack();
    void Rewind() { m_pCursor = m_pHead; }
    CDataListNode* Current() const { return m_pCursor; }
    CDataListNode* Next();
    CDataListNode* Prev();
    CDataListNode* Move(int n);
    CDataListNode* SeekIndex(int n);
    CDataListNode* Head() const { return m_pHead; }
    CDataListNode* Tail() const { return m_pTail; }
    int Count() const { return m_nCount; }
    void Clear();
    // Counts the changes to the list's membership, so that what is derived from the list can
    // tell when to derive it again.
    std::uint64_t Revision() const { return m_nRevision; }

    // The payload under the cursor, or none.
    CDataObject* CurrentPayload() const {
        return m_pCursor ? m_pCursor->m_pPayload.get() : nullptr;
    }

    // The first record whose key equals key, leaving the cursor on it (none when there is no
    // such record). Only for a list made with a key. Inline: the readers look up a record or two
    // for every line they read.
    CDataObject* FindByKey(std::string_view key) {
        m_pCursor = m_slots.empty() ? nullptr : SlotOf(key, Digest(key)).node;
        return CurrentPayload();
    }

private:
    int m_nCount = 0;
    std::uint64_t m_nRevision = 0;
    CDataListNode* m_pHead = nullptr;
    CDataListNode* m_pTail = nullptr;
    CDataListNode* m_pCursor = nullptr;
    KeyOf m_keyOf;
    // The index: open addressing over a power-of-two table, at most half full, each slot the
    // key's digest, the key and the node (none: empty). Records are never taken out one by one,
    // so slots are only ever filled or overwritten.
    struct Digest {
        // The first eight bytes, so that most keys compare in one step.
        std::uint64_t head = 0;
        std::uint64_t hash = 0;

        explicit Digest(std::string_view key) : head(HeadOf(key.data(), key.size())) {
            const std::size_t n = key.size();
            // A multiplicative mix of the head and the length; the bytes after the eighth, rare
            // in a name, are added FNV-1a style.
            std::uint64_t h = (head ^ n) * 0x9E3779B97F4A7C15ULL;
            for (std::size_t i = 8; i < n; ++i) {
                h = (h ^ static_cast<unsigned char>(key[i])) * 1099511628211ULL;
            }
            hash = h;
        }
        // The first min(n, 8) bytes of p, the first in the lowest byte, zeros above them. Two
        // or three loads that may overlap, rather than a copy of a variable length: a short key
        // is read in a few instructions.
        static std::uint64_t HeadOf(const char* p, std::size_t n) {
            if (n >= 8) {
                return Little<std::uint64_t>(p);
            }
            if (n >= 4) {
                return Little<std::uint32_t>(p) |
                       (std::uint64_t{Little<std::uint32_t>(p + n - 4)} << (8 * (n - 4)));
            }
            if (n == 0) {  // an empty view may have no data at all
                return 0;
            }
            return Byte(p, 0) | Byte(p, n / 2) | Byte(p, n - 1);
        }
        // Byte at of p, in its place of a little-endian word.
        static std::uint64_t Byte(const char* p, std::size_t at) {
            return std::uint64_t{static_cast<unsigned char>(p[at])} << (8 * at);
        }
        template <typename Word>
        static Word Little(const char* p) {
            Word word;
            std::memcpy(&word, p, sizeof word);
            if constexpr (std::endian::native == std::endian::big) {
                word = sizeof word == 8 ? __builtin_bswap64(word) : __builtin_bswap32(word);
            }
            return word;
        }
        // The high bits are the best mixed: the slot is picked by them.
        std::size_t Start() const { return static_cast<std::size_t>(hash >> 32); }
    };
    struct Slot {
        std::uint64_t hash = 0;
        std::uint64_t head = 0;
        std::string_view key;  // the record's own key, which does not change while indexed
        CDataListNode* node = nullptr;
    };
    static bool Holds(const Slot& slot, std::string_view key, const Digest& digest) {
        return slot.hash == digest.hash && slot.head == digest.head &&
               slot.key.size() == key.size() && (key.size() <= 8 || TailsEqual(slot.key, key));
    }
    // Out of line: the call it makes would cost every lookup the registers it saves.
    static bool TailsEqual(std::string_view a, std::string_view b);
    // The slot holding key, or the empty slot where it would go. The table must not be empty.
    Slot& SlotOf(std::string_view key, const Digest& digest) {
        for (std::size_t i = digest.Start() & m_nMask;; i = (i + 1) & m_nMask) {
            Slot& slot = m_slots[i];
            if (!slot.node || Holds(slot, key, digest)) {
                return slot;
            }
        }
    }
    // Indexes node under its key; replace says whether it takes the key from an earlier record.
    void Index(CDataListNode* node, bool replace);
    std::vector<Slot> m_slots;
    std::size_t m_nMask = 0;  // the table's size less one, kept to spare a division a lookup
    std::size_t m_nIndexed = 0;
};
