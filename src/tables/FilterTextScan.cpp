#include "FilterTextScan.h"

#include <algorithm>
#include <cstring>
#include <immintrin.h>

namespace Orvo::UI::UIComponents {

namespace {

// Where a scan looks: the bulk's text, where each row's text begins, and what is looked for.
template<typename Char> struct Scan
{
    const Char* text;
    const std::uint32_t* offsets;
    int rows;
    const Char* needle;
    std::size_t needleLength;
    BulkRows candidates;
};

// A place where the first and last characters matched: the row it lies in is a hit when the whole
// text matches there without running into the next row.
template<typename Char> class HitCollector
{
public:
    explicit HitCollector(const Scan<Char>& scan)
        : m_scan(scan)
    { }

    // Places must come in increasing order. Returns the position from which to go on.
    std::size_t Place(std::size_t position)
    {
        while (m_row < m_scan.rows && m_scan.offsets[m_row + 1] <= position)
            ++m_row;
        if (m_row >= m_scan.rows)
            return std::size_t(-1);
        const std::size_t rowEnd = m_scan.offsets[m_row + 1];
        if (!m_scan.candidates.test(static_cast<std::size_t>(m_row))
            || position + m_scan.needleLength > rowEnd)
            return position + 1;
        if (std::memcmp(m_scan.text + position, m_scan.needle, m_scan.needleLength * sizeof(Char)) != 0)
            return position + 1;
        m_hits.set(static_cast<std::size_t>(m_row));
        // The rest of the row cannot add anything.
        return rowEnd;
    }

    BulkRows Hits() const { return m_hits; }

private:
    const Scan<Char>& m_scan;
    int m_row = 0;
    BulkRows m_hits;
};

template<typename Char> std::size_t ScanEnd(const Scan<Char>& scan)
{
    return scan.offsets[scan.rows];
}

// One place at a time from position on: the whole of a plain scan, the rest of a vector one.
template<typename Char>
BulkRows FinishPlainly(const Scan<Char>& scan, HitCollector<Char>& hits, std::size_t position)
{
    const std::size_t end = ScanEnd(scan);
    const Char first = scan.needle[0];
    const Char last = scan.needle[scan.needleLength - 1];
    while (position + scan.needleLength <= end) {
        if (scan.text[position] == first && scan.text[position + scan.needleLength - 1] == last)
            position = hits.Place(position);
        else
            ++position;
    }
    return hits.Hits();
}

template<typename Char> BulkRows ScanPlainly(const Scan<Char>& scan)
{
    HitCollector<Char> hits(scan);
    return FinishPlainly(scan, hits, 0);
}

// The vector kernels give a mask bit per byte where both the first and the last character match;
// a 16-bit character sets two bits, and the second one is skipped as a place already looked at.
template<typename Char>
std::size_t PlaceBits(HitCollector<Char>& hits, std::size_t base, std::uint32_t mask, std::size_t charsPerBit)
{
    std::size_t next = base;
    while (mask != 0) {
        const std::size_t position = base + static_cast<std::size_t>(__builtin_ctz(mask)) / charsPerBit;
        mask &= mask - 1;
        if (position < next)
            continue;
        next = hits.Place(position);
        if (next == std::size_t(-1))
            return next;
    }
    return next;
}

template<typename Char> __m128i Splat128(Char c)
{
    if constexpr (sizeof(Char) == 1)
        return _mm_set1_epi8(static_cast<char>(c));
    else
        return _mm_set1_epi16(static_cast<short>(c));
}

template<typename Char> __m128i Equal128(__m128i a, __m128i b)
{
    if constexpr (sizeof(Char) == 1)
        return _mm_cmpeq_epi8(a, b);
    else
        return _mm_cmpeq_epi16(a, b);
}

template<typename Char> BulkRows ScanSse2(const Scan<Char>& scan)
{
    constexpr std::size_t c_step = 16 / sizeof(Char);
    HitCollector<Char> hits(scan);
    const std::size_t end = ScanEnd(scan);
    const __m128i first = Splat128(scan.needle[0]);
    const __m128i last = Splat128(scan.needle[scan.needleLength - 1]);
    std::size_t position = 0;
    while (position + scan.needleLength - 1 + c_step <= end) {
        const __m128i atFirst = _mm_loadu_si128(reinterpret_cast<const __m128i*>(scan.text + position));
        const __m128i atLast
            = _mm_loadu_si128(reinterpret_cast<const __m128i*>(scan.text + position + scan.needleLength - 1));
        const unsigned mask = static_cast<unsigned>(
            _mm_movemask_epi8(_mm_and_si128(Equal128<Char>(atFirst, first), Equal128<Char>(atLast, last))));
        std::size_t next = position + c_step;
        if (mask != 0) {
            const std::size_t placed = PlaceBits(hits, position, mask, sizeof(Char));
            if (placed == std::size_t(-1))
                return hits.Hits();
            next = std::max(next, placed);
        }
        position = next;
    }
    return FinishPlainly(scan, hits, position);
}

template<typename Char> __attribute__((target("avx2"))) BulkRows ScanAvx2(const Scan<Char>& scan)
{
    constexpr std::size_t c_step = 32 / sizeof(Char);
    HitCollector<Char> hits(scan);
    const std::size_t end = ScanEnd(scan);
    __m256i first;
    __m256i last;
    if constexpr (sizeof(Char) == 1) {
        first = _mm256_set1_epi8(static_cast<char>(scan.needle[0]));
        last = _mm256_set1_epi8(static_cast<char>(scan.needle[scan.needleLength - 1]));
    } else {
        first = _mm256_set1_epi16(static_cast<short>(scan.needle[0]));
        last = _mm256_set1_epi16(static_cast<short>(scan.needle[scan.needleLength - 1]));
    }
    std::size_t position = 0;
    while (position + scan.needleLength - 1 + c_step <= end) {
        const __m256i atFirst = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(scan.text + position));
        const __m256i atLast = _mm256_loadu_si256(
            reinterpret_cast<const __m256i*>(scan.text + position + scan.needleLength - 1));
        __m256i both;
        if constexpr (sizeof(Char) == 1)
            both = _mm256_and_si256(_mm256_cmpeq_epi8(atFirst, first), _mm256_cmpeq_epi8(atLast, last));
        else
            both = _mm256_and_si256(_mm256_cmpeq_epi16(atFirst, first), _mm256_cmpeq_epi16(atLast, last));
        const std::uint32_t mask = static_cast<std::uint32_t>(_mm256_movemask_epi8(both));
        std::size_t next = position + c_step;
        if (mask != 0) {
            const std::size_t placed = PlaceBits(hits, position, mask, sizeof(Char));
            if (placed == std::size_t(-1))
                return hits.Hits();
            next = std::max(next, placed);
        }
        position = next;
    }
    return FinishPlainly(scan, hits, position);
}

bool HasAvx2()
{
    static const bool has = __builtin_cpu_supports("avx2");
    return has;
}

enum class Kernel
{
    Plain,
    Best,
};

BulkRows Search(const FilterFoldedBulk::Texts& texts, int rows, const FilterSearchText& text,
                BulkRows candidates, Kernel kernel)
{
    if (candidates.none())
        return {};
    if (text.IsEmpty())
        return candidates; // every text contains the empty text
    auto run = [&](const auto& scan) {
        if (kernel == Kernel::Plain)
            return ScanPlainly(scan);
        return HasAvx2() ? ScanAvx2(scan) : ScanSse2(scan);
    };
    if (texts.latin1) {
        if (!text.FitsLatin1())
            return {};
        const Scan<std::uint8_t> scan { texts.latin1Text.data(), texts.offsets.data(), rows,
                                        text.Latin1().data(),    text.Latin1().size(), candidates };
        return run(scan);
    }
    const Scan<char16_t> scan { texts.utf16Text.data(), texts.offsets.data(), rows,
                                text.Utf16().data(),    text.Utf16().size(),  candidates };
    return run(scan);
}

} // namespace

FilterSearchText::FilterSearchText(const QString& folded)
{
    m_utf16.reserve(static_cast<std::size_t>(folded.size()));
    for (QChar c : folded) {
        m_utf16.push_back(c.unicode());
        m_fitsLatin1 = m_fitsLatin1 && c.unicode() < 0x100;
    }
    if (m_fitsLatin1) {
        for (char16_t c : m_utf16)
            m_latin1.push_back(static_cast<std::uint8_t>(c));
    }
}

BulkRows FilterTextScan::Containing(const FilterFoldedBulk::Texts& texts, int rows,
                                    const FilterSearchText& text, BulkRows candidates)
{
    return Search(texts, rows, text, candidates, Kernel::Best);
}

BulkRows FilterTextScan::ContainingPlainly(const FilterFoldedBulk::Texts& texts, int rows,
                                           const FilterSearchText& text, BulkRows candidates)
{
    return Search(texts, rows, text, candidates, Kernel::Plain);
}

const char* FilterTextScan::KernelName()
{
    return HasAvx2() ? "avx2" : "sse2";
}

} // namespace Orvo::UI::UIComponents
