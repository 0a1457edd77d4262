#pragma once

#include "FilterColumnFold.h"

#include <QString>
#include <cstdint>
#include <vector>

namespace Orvo::UI::UIComponents {

// A text searched for in folded bulks, prepared once for both of their encodings.
class FilterSearchText
{
public:
    FilterSearchText() = default;
    // folded: already in the search form of the bulks.
    explicit FilterSearchText(const QString& folded);

    bool IsEmpty() const { return m_utf16.empty(); }
    const std::vector<char16_t>& Utf16() const { return m_utf16; }
    // Empty when a character does not fit Latin-1: such a text is never in a Latin-1 bulk.
    bool FitsLatin1() const { return m_fitsLatin1; }
    const std::vector<std::uint8_t>& Latin1() const { return m_latin1; }

private:
    std::vector<char16_t> m_utf16;
    std::vector<std::uint8_t> m_latin1;
    bool m_fitsLatin1 = true;
};

// Contains-matching over a folded bulk: the whole text of the bulk is scanned at once for places
// where the first and the last character of the searched text both match (16 or 32 characters per
// step with SSE2 or AVX2, whichever the processor has), and only those places are compared in full.
class FilterTextScan
{
public:
    // The rows among candidates whose folded text contains text.
    static BulkRows Containing(const FilterFoldedBulk::Texts& texts, int rows, const FilterSearchText& text,
                               BulkRows candidates);
    // The same, one row at a time without vector instructions: what the scan must agree with.
    static BulkRows ContainingPlainly(const FilterFoldedBulk::Texts& texts, int rows,
                                      const FilterSearchText& text, BulkRows candidates);
    // "avx2" or "sse2": the kernel this processor runs.
    static const char* KernelName();
};

} // namespace Orvo::UI::UIComponents
