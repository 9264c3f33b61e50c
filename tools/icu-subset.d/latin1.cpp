// What ICU's regular expressions ask of its tables of characters, answered for the first 256.
//
// A text of the game is bytes, each of them one character, so nothing above ever has to be matched,
// and the tables, with what loads them and with the languages that they lean on, would be two
// thirds of the library. It is compiled by tools/icu-subset among ICU's own sources, in place of
// regexst.cpp, uniset_props.cpp, uchar.cpp, ucase.cpp and all that these would bring. A pattern
// that names a property or a character by its name does not compile; the classes \w \d \s \h and
// \b, and letters in either case, are what ICU's tables make of these 256.

#include "cmemory.h"
#include "regexst.h"
#include "ucase.h"
#include "ucln_cmn.h"
#include "unicode/uchar.h"
#include "unicode/uniset.h"
#include "uprops.h"

namespace {

constexpr UChar32 kMultiplication = 0xD7;
constexpr UChar32 kSoftHyphen = 0xAD;
constexpr UChar32 kHardBlank = 0xA0; // one that does not break

bool isCapital(UChar32 c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != kMultiplication);
}

// Its other case is no further away than this, where both are among the 256.
constexpr UChar32 kToSmall = 0x20;

bool isSmall(UChar32 c)
{
    return c >= kToSmall && isCapital(c - kToSmall);
}

// The one small letter that stands for two others where case does not count.
constexpr UChar32 kSharpS = 0xDF;
constexpr char16_t kSharpSFolded[] = u"ss";

UChar32 folded(UChar32 c)
{
    return isCapital(c) ? c + kToSmall : c;
}

} // namespace

U_CAPI int8_t U_EXPORT2 u_charType(UChar32 c)
{
    if (u_isdigit(c)) {
        return U_DECIMAL_DIGIT_NUMBER;
    }
    if (c == ' ' || c == kHardBlank) {
        return U_SPACE_SEPARATOR;
    }
    return c == kSoftHyphen ? U_FORMAT_CHAR : U_UNASSIGNED; // nothing else is asked for
}

U_CAPI UBool U_EXPORT2 u_isdigit(UChar32 c)
{
    return c >= '0' && c <= '9';
}

U_CAPI int32_t U_EXPORT2 u_charDigitValue(UChar32 c)
{
    return u_isdigit(c) ? c - '0' : -1;
}

U_CAPI UBool U_EXPORT2 u_hasBinaryProperty(UChar32 c, UProperty which)
{
    return which == UCHAR_CASE_SENSITIVE && (isCapital(c) || isSmall(c));
}

U_CAPI UChar32 U_EXPORT2 u_foldCase(UChar32 c, uint32_t /*options*/)
{
    return folded(c);
}

U_CFUNC int32_t U_EXPORT2 ucase_toFullFolding(UChar32 c, const UChar** text, uint32_t /*options*/)
{
    if (c == kSharpS) {
        *text = kSharpSFolded;
        return 2; // as many characters
    }
    return isCapital(c) ? folded(c) : ~c; // one character; the complement says that it stays itself
}

U_CAPI UChar32 U_EXPORT2 u_charFromName(
    UCharNameChoice /*choice*/, const char* /*name*/, UErrorCode* status)
{
    *status = U_UNSUPPORTED_ERROR;
    return 0;
}

// Nothing is ever given back: the page ends first.
U_CFUNC void ucln_common_registerCleanup(ECleanupCommonType /*type*/, cleanupFunc* /*function*/) { }

U_CAPI int32_t U_EXPORT2 uprv_min(int32_t a, int32_t b)
{
    return a < b ? a : b;
}

U_CAPI UBool U_EXPORT2 uprv_add32_overflow(int32_t a, int32_t b, int32_t* sum)
{
    return __builtin_add_overflow(a, b, sum);
}

U_NAMESPACE_BEGIN

UnicodeSet::UnicodeSet(const UnicodeString& /*pattern*/, UErrorCode& status)
{
    status = U_UNSUPPORTED_ERROR;
}

UnicodeSet::UnicodeSet(const UnicodeString& /*pattern*/, uint32_t /*options*/,
    const SymbolTable* /*symbols*/, UErrorCode& status)
{
    status = U_UNSUPPORTED_ERROR;
}

UnicodeSet& UnicodeSet::applyIntPropertyValue(UProperty property, int32_t value, UErrorCode& status)
{
    clear();
    if (property == UCHAR_GENERAL_CATEGORY_MASK && value == U_GC_ND_MASK) {
        return add(u'0', u'9');
    }
    if (property == UCHAR_GENERAL_CATEGORY_MASK && value == U_GC_ZS_MASK) {
        return add(u' ').add(kHardBlank);
    }
    status = U_UNSUPPORTED_ERROR;
    return *this;
}

UnicodeSet& UnicodeSet::applyPropertyAlias(
    const UnicodeString& /*property*/, const UnicodeString& /*value*/, UErrorCode& status)
{
    status = U_UNSUPPORTED_ERROR;
    return *this;
}

UnicodeSet& UnicodeSet::closeOver(int32_t /*attribute*/)
{
    UnicodeSet others;
    for (UChar32 c = 0; c < 0x100; ++c) {
        if (contains(c) && isCapital(c)) {
            others.add(c + kToSmall);
        } else if (contains(c) && isSmall(c)) {
            others.add(c - kToSmall);
        }
    }
    return addAll(others);
}

UnicodeString& UnicodeString::foldCase(uint32_t /*options*/)
{
    UnicodeString result;
    for (int32_t i = 0; i < length(); ++i) {
        if (charAt(i) == kSharpS) {
            result.append(kSharpSFolded, 2);
        } else {
            result.append(static_cast<char16_t>(folded(charAt(i))));
        }
    }
    return *this = result;
}

// The names in a pattern, which are plain letters.
int8_t UnicodeString::doCaseCompare(int32_t start, int32_t length, const char16_t* other,
    int32_t otherStart, int32_t otherLength, uint32_t /*options*/) const
{
    UnicodeString mine(*this, start, length);
    UnicodeString theirs(other + otherStart, otherLength);
    return mine.foldCase().compare(theirs.foldCase());
}

RegexStaticSets* RegexStaticSets::gStaticSets = nullptr;

RegexStaticSets::RegexStaticSets(UErrorCode* status)
{
    fUnescapeCharSet.addAll(UnicodeString(u"acefnrtuUx")).freeze();
    fPropSets[URX_ISWORD_SET].add(u'0', u'9').add(u'A', u'Z').add(u'_').add(u'a', u'z');
    fPropSets[URX_ISWORD_SET]
        .add(0xAA)
        .add(0xB5)
        .add(0xBA)
        .add(0xC0, 0xD6)
        .add(0xD8, 0xF6)
        .add(0xF8, 0xFF);
    fPropSets[URX_ISSPACE_SET].add(u'\t', u'\r').add(u' ').add(0x85).add(kHardBlank);
    fPropSets[URX_GC_CONTROL].add(0, 0x1F).add(0x7F, 0x9F).add(kSoftHyphen);
    fPropSets[URX_GC_NORMAL].complement().removeAll(fPropSets[URX_GC_CONTROL]);
    for (int32_t i = 0; i < URX_LAST_SET; ++i) {
        fPropSets[i].freeze();
        fPropSets8[i].init(&fPropSets[i]);
    }
    fRuleSets[kRuleSet_rule_char - 128]
        .addAll(UnicodeString(u"*?+[(){}^$|\\."))
        .complement()
        .freeze();
    fRuleSets[kRuleSet_digit_char - 128].add(u'0', u'9').freeze();
    fRuleSets[kRuleSet_ascii_letter - 128].add(u'A', u'Z').add(u'a', u'z').freeze();
    fRuleDigitsAlias = &fRuleSets[kRuleSet_digit_char - 128];
    fEmptyText = utext_openUChars(nullptr, nullptr, 0, status);
}

RegexStaticSets::~RegexStaticSets()
{
    utext_close(fEmptyText);
}

// A page has one thread.
void RegexStaticSets::initGlobals(UErrorCode* status)
{
    if (gStaticSets == nullptr && U_SUCCESS(*status)) {
        gStaticSets = new RegexStaticSets(status);
    }
}

U_NAMESPACE_END
