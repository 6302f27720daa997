#include "sdk/image/FieldKernels.h"

#if defined(__x86_64__)

#include "sdk/image/PixelLoops.h"

#include <immintrin.h>

#define CVX_FIELD_SSE41 [[gnu::target("sse4.1")]]
#define CVX_FIELD_AVX2 [[gnu::target("avx2")]]

namespace {

/// What is the same for all pixels of a line.
struct FieldConstants
{
    __m128i half;
    __m128i offsetShift;
    __m128i sumBits;
    __m128i maximum;

    explicit FieldConstants(const FieldLine &field)
        : half(_mm_set1_epi32(1 << (field.sumBits - 1))),
          offsetShift(_mm_cvtsi32_si128(field.offsetShift)),
          sumBits(_mm_cvtsi32_si128(field.sumBits)),
          maximum(_mm_set1_epi16(static_cast<short>(field.maximum)))
    { }
};

/// Returns four corrected values from the products and the offsets in the upper halves of the lanes.
CVX_FIELD_SSE41 inline __m128i fieldSums(__m128i products, __m128i offsets, const FieldConstants &constants)
{
    const __m128i sums = _mm_add_epi32(
        _mm_srli_epi32(products, FieldLine::droppedBits), _mm_sra_epi32(offsets, constants.offsetShift));
    return _mm_sra_epi32(_mm_add_epi32(sums, constants.half), constants.sumBits);
}

/// Returns eight corrected values.
CVX_FIELD_SSE41 inline __m128i fieldWords(
    __m128i values, const std::uint16_t *gains, const std::int16_t *offsets, const FieldConstants &constants)
{
    const __m128i gain = _mm_loadu_si128(reinterpret_cast<const __m128i *>(gains));
    const __m128i offset = _mm_loadu_si128(reinterpret_cast<const __m128i *>(offsets));
    const __m128i low = _mm_mullo_epi16(values, gain);
    const __m128i high = _mm_mulhi_epu16(values, gain);
    const __m128i zero = _mm_setzero_si128();
    const __m128i words = _mm_packus_epi32(
        fieldSums(_mm_unpacklo_epi16(low, high), _mm_unpacklo_epi16(zero, offset), constants),
        fieldSums(_mm_unpackhi_epi16(low, high), _mm_unpackhi_epi16(zero, offset), constants));
    return _mm_min_epu16(words, constants.maximum);
}

/// Returns eight corrected values; see above.
CVX_FIELD_AVX2 inline __m256i fieldSums(__m256i products, __m256i offsets, const FieldConstants &constants)
{
    const __m256i sums = _mm256_add_epi32(_mm256_srli_epi32(products, FieldLine::droppedBits),
        _mm256_sra_epi32(offsets, constants.offsetShift));
    return _mm256_sra_epi32(
        _mm256_add_epi32(sums, _mm256_broadcastsi128_si256(constants.half)), constants.sumBits);
}

/// Returns sixteen corrected values. Both halves are unpacked and packed alike, so the order stays.
CVX_FIELD_AVX2 inline __m256i fieldWords(
    __m256i values, const std::uint16_t *gains, const std::int16_t *offsets, const FieldConstants &constants)
{
    const __m256i gain = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(gains));
    const __m256i offset = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(offsets));
    const __m256i low = _mm256_mullo_epi16(values, gain);
    const __m256i high = _mm256_mulhi_epu16(values, gain);
    const __m256i zero = _mm256_setzero_si256();
    const __m256i words = _mm256_packus_epi32(
        fieldSums(_mm256_unpacklo_epi16(low, high), _mm256_unpacklo_epi16(zero, offset), constants),
        fieldSums(_mm256_unpackhi_epi16(low, high), _mm256_unpackhi_epi16(zero, offset), constants));
    return _mm256_min_epu16(words, _mm256_broadcastsi128_si256(constants.maximum));
}

/// Returns the field from the pixel `index` on.
FieldLine rest(const FieldLine &field, std::size_t index)
{
    FieldLine result = field;
    result.gains += index;
    result.offsets += index;
    return result;
}

CVX_FIELD_SSE41 inline __m128i loadEight(const std::uint8_t *values)
{
    return _mm_cvtepu8_epi16(_mm_loadl_epi64(reinterpret_cast<const __m128i *>(values)));
}

CVX_FIELD_SSE41 inline __m128i loadEight(const std::uint16_t *values)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i *>(values));
}

CVX_FIELD_SSE41 inline void storeEight(__m128i words, std::uint8_t *output)
{
    _mm_storel_epi64(reinterpret_cast<__m128i *>(output), _mm_packus_epi16(words, words));
}

CVX_FIELD_SSE41 inline void storeEight(__m128i words, std::uint16_t *output)
{
    _mm_storeu_si128(reinterpret_cast<__m128i *>(output), words);
}

CVX_FIELD_AVX2 inline __m256i loadSixteen(const std::uint8_t *values)
{
    return _mm256_cvtepu8_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i *>(values)));
}

CVX_FIELD_AVX2 inline __m256i loadSixteen(const std::uint16_t *values)
{
    return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(values));
}

CVX_FIELD_AVX2 inline void storeSixteen(__m256i words, std::uint8_t *output)
{
    _mm_storeu_si128(reinterpret_cast<__m128i *>(output),
        _mm_packus_epi16(_mm256_castsi256_si128(words), _mm256_extracti128_si256(words, 1)));
}

CVX_FIELD_AVX2 inline void storeSixteen(__m256i words, std::uint16_t *output)
{
    _mm256_storeu_si256(reinterpret_cast<__m256i *>(output), words);
}

template <typename Value>
CVX_FIELD_SSE41 void correctEights(
    const Value *input, const FieldLine &field, std::size_t count, Value *output)
{
    const FieldConstants constants(field);
    std::size_t i = 0;
    for (; i + 8 <= count; i += 8)
        storeEight(
            fieldWords(loadEight(input + i), field.gains + i, field.offsets + i, constants), output + i);
    pixelloops::correctField(input + i, rest(field, i), count - i, output + i);
}

template <typename Value>
CVX_FIELD_AVX2 void correctSixteens(
    const Value *input, const FieldLine &field, std::size_t count, Value *output)
{
    const FieldConstants constants(field);
    std::size_t i = 0;
    for (; i + 16 <= count; i += 16)
        storeSixteen(
            fieldWords(loadSixteen(input + i), field.gains + i, field.offsets + i, constants), output + i);
    pixelloops::correctField(input + i, rest(field, i), count - i, output + i);
}

} // namespace

void correctFieldSse41(
    const std::uint8_t *input, const FieldLine &field, std::size_t count, std::uint8_t *output)
{
    correctEights(input, field, count, output);
}

void correctFieldSse41(
    const std::uint16_t *input, const FieldLine &field, std::size_t count, std::uint16_t *output)
{
    correctEights(input, field, count, output);
}

void correctFieldAvx2(
    const std::uint8_t *input, const FieldLine &field, std::size_t count, std::uint8_t *output)
{
    correctSixteens(input, field, count, output);
}

void correctFieldAvx2(
    const std::uint16_t *input, const FieldLine &field, std::size_t count, std::uint16_t *output)
{
    correctSixteens(input, field, count, output);
}

#endif
