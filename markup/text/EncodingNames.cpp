#include "markup/text/EncodingNames.h"

#include "markup/text/BucketTable.h"

namespace brennet {
namespace {

// clang-format off
constexpr NamedCode kEncodings[] = {
    {u"437", 437}, {u"ansi_x3.4-1968", 20127}, {u"ansi_x3.4-1986", 20127}, {u"arabic", 28596},
    {u"ascii", 20127}, {u"asmo-708", 708}, {u"big5", 950}, {u"big5-hkscs", 950},
    {u"ccsid00858", 858}, {u"ccsid00924", 20924}, {u"ccsid01140", 1140}, {u"ccsid01141", 1141},
    {u"ccsid01142", 1142}, {u"ccsid01143", 1143}, {u"ccsid01144", 1144}, {u"ccsid01145", 1145},
    {u"ccsid01146", 1146}, {u"ccsid01147", 1147}, {u"ccsid01148", 1148}, {u"ccsid01149", 1149},
    {u"chinese", 936}, {u"cn-big5", 950}, {u"cn-gb", 936}, {u"cp00858", 858}, {u"cp00924", 20924},
    {u"cp01140", 1140}, {u"cp01141", 1141}, {u"cp01142", 1142}, {u"cp01143", 1143},
    {u"cp01144", 1144}, {u"cp01145", 1145}, {u"cp01146", 1146}, {u"cp01147", 1147},
    {u"cp01148", 1148}, {u"cp01149", 1149}, {u"cp037", 37}, {u"cp1025", 21025}, {u"cp1026", 1026},
    {u"cp1256", 1256}, {u"cp273", 20273}, {u"cp278", 20278}, {u"cp280", 20280}, {u"cp284", 20284},
    {u"cp285", 20285}, {u"cp290", 20290}, {u"cp297", 20297}, {u"cp367", 20127}, {u"cp420", 20420},
    {u"cp423", 20423}, {u"cp424", 20424}, {u"cp437", 437}, {u"cp500", 500}, {u"cp50227", 50227},
    {u"cp819", 28591}, {u"cp850", 850}, {u"cp852", 852}, {u"cp855", 855}, {u"cp857", 857},
    {u"cp858", 858}, {u"cp860", 860}, {u"cp861", 861}, {u"cp862", 862}, {u"cp863", 863},
    {u"cp864", 864}, {u"cp865", 865}, {u"cp866", 866}, {u"cp869", 869}, {u"cp870", 870},
    {u"cp871", 20871}, {u"cp875", 875}, {u"cp880", 20880}, {u"cp905", 20905}, {u"cp936", 936},
    {u"csascii", 20127}, {u"csbig5", 950}, {u"cseuckr", 51949}, {u"cseucpkdfmtjapanese", 51932},
    {u"csgb2312", 936}, {u"csgb231280", 936}, {u"csibm037", 37}, {u"csibm1026", 1026},
    {u"csibm273", 20273}, {u"csibm277", 20277}, {u"csibm278", 20278}, {u"csibm280", 20280},
    {u"csibm284", 20284}, {u"csibm285", 20285}, {u"csibm290", 20290}, {u"csibm297", 20297},
    {u"csibm420", 20420}, {u"csibm423", 20423}, {u"csibm424", 20424}, {u"csibm500", 500},
    {u"csibm870", 870}, {u"csibm871", 20871}, {u"csibm880", 20880}, {u"csibm905", 20905},
    {u"csibmthai", 20838}, {u"csiso2022jp", 50221}, {u"csiso2022kr", 50225},
    {u"csiso58gb231280", 936}, {u"csisolatin1", 28591}, {u"csisolatin2", 28592},
    {u"csisolatin3", 28593}, {u"csisolatin4", 28594}, {u"csisolatin5", 28599},
    {u"csisolatin9", 28605}, {u"csisolatinarabic", 28596}, {u"csisolatincyrillic", 28595},
    {u"csisolatingreek", 28597}, {u"csisolatinhebrew", 28598}, {u"cskoi8r", 20866},
    {u"csksc56011987", 949}, {u"cspc8codepage437", 437}, {u"csshiftjis", 932},
    {u"csunicode11utf7", 65000}, {u"cswindows31j", 932}, {u"cyrillic", 28595},
    {u"din_66003", 20106}, {u"dos-720", 720}, {u"dos-862", 862}, {u"dos-874", 874},
    {u"ebcdic-cp-ar1", 20420}, {u"ebcdic-cp-be", 500}, {u"ebcdic-cp-ca", 37},
    {u"ebcdic-cp-ch", 500}, {u"ebcdic-cp-dk", 20277}, {u"ebcdic-cp-es", 20284},
    {u"ebcdic-cp-fi", 20278}, {u"ebcdic-cp-fr", 20297}, {u"ebcdic-cp-gb", 20285},
    {u"ebcdic-cp-gr", 20423}, {u"ebcdic-cp-he", 20424}, {u"ebcdic-cp-is", 20871},
    {u"ebcdic-cp-it", 20280}, {u"ebcdic-cp-nl", 37}, {u"ebcdic-cp-no", 20277},
    {u"ebcdic-cp-roece", 870}, {u"ebcdic-cp-se", 20278}, {u"ebcdic-cp-tr", 20905},
    {u"ebcdic-cp-us", 37}, {u"ebcdic-cp-wt", 37}, {u"ebcdic-cp-yu", 870},
    {u"ebcdic-cyrillic", 20880}, {u"ebcdic-de-273+euro", 1141}, {u"ebcdic-dk-277+euro", 1142},
    {u"ebcdic-es-284+euro", 1145}, {u"ebcdic-fi-278+euro", 1143}, {u"ebcdic-fr-297+euro", 1147},
    {u"ebcdic-gb-285+euro", 1146}, {u"ebcdic-international-500+euro", 1148},
    {u"ebcdic-is-871+euro", 1149}, {u"ebcdic-it-280+euro", 1144}, {u"ebcdic-jp-kana", 20290},
    {u"ebcdic-latin9--euro", 20924}, {u"ebcdic-no-277+euro", 1142}, {u"ebcdic-se-278+euro", 1143},
    {u"ebcdic-us-37+euro", 1140}, {u"ecma-114", 28596}, {u"ecma-118", 28597},
    {u"elot_928", 28597}, {u"euc-cn", 51936}, {u"euc-jp", 51932}, {u"euc-kr", 51949},
    {u"extended_unix_code_packed_format_for_japanese", 51932}, {u"gb18030", 54936},
    {u"gb2312", 936}, {u"gb2312-80", 936}, {u"gb231280", 936}, {u"gb_2312-80", 936},
    {u"gbk", 936}, {u"german", 20106}, {u"greek", 28597}, {u"greek8", 28597}, {u"hebrew", 28598},
    {u"hz-gb-2312", 52936}, {u"ibm-thai", 20838}, {u"ibm00858", 858}, {u"ibm00924", 20924},
    {u"ibm01047", 1047}, {u"ibm01140", 1140}, {u"ibm01141", 1141}, {u"ibm01142", 1142},
    {u"ibm01143", 1143}, {u"ibm01144", 1144}, {u"ibm01145", 1145}, {u"ibm01146", 1146},
    {u"ibm01147", 1147}, {u"ibm01148", 1148}, {u"ibm01149", 1149}, {u"ibm037", 37},
    {u"ibm1026", 1026}, {u"ibm273", 20273}, {u"ibm277", 20277}, {u"ibm278", 20278},
    {u"ibm280", 20280}, {u"ibm284", 20284}, {u"ibm285", 20285}, {u"ibm290", 20290},
    {u"ibm297", 20297}, {u"ibm367", 20127}, {u"ibm420", 20420}, {u"ibm423", 20423},
    {u"ibm424", 20424}, {u"ibm437", 437}, {u"ibm500", 500}, {u"ibm737", 737}, {u"ibm775", 775},
    {u"ibm819", 28591}, {u"ibm850", 850}, {u"ibm852", 852}, {u"ibm855", 855}, {u"ibm857", 857},
    {u"ibm860", 860}, {u"ibm861", 861}, {u"ibm862", 862}, {u"ibm863", 863}, {u"ibm864", 864},
    {u"ibm865", 865}, {u"ibm866", 866}, {u"ibm869", 869}, {u"ibm870", 870}, {u"ibm871", 20871},
    {u"ibm880", 20880}, {u"ibm905", 20905}, {u"irv", 20105}, {u"iso-10646-ucs-2", 1200},
    {u"iso-2022-jp", 50220}, {u"iso-2022-jpeuc", 51932}, {u"iso-2022-kr", 50225},
    {u"iso-2022-kr-7", 50225}, {u"iso-2022-kr-7bit", 50225}, {u"iso-2022-kr-8", 51949},
    {u"iso-2022-kr-8bit", 51949}, {u"iso-8859-1", 28591}, {u"iso-8859-11", 874},
    {u"iso-8859-13", 28603}, {u"iso-8859-15", 28605}, {u"iso-8859-2", 28592},
    {u"iso-8859-3", 28593}, {u"iso-8859-4", 28594}, {u"iso-8859-5", 28595},
    {u"iso-8859-6", 28596}, {u"iso-8859-7", 28597}, {u"iso-8859-8", 28598},
    {u"iso-8859-8 visual", 28598}, {u"iso-8859-8-i", 38598}, {u"iso-8859-9", 28599},
    {u"iso-ir-100", 28591}, {u"iso-ir-101", 28592}, {u"iso-ir-109", 28593},
    {u"iso-ir-110", 28594}, {u"iso-ir-126", 28597}, {u"iso-ir-127", 28596},
    {u"iso-ir-138", 28598}, {u"iso-ir-144", 28595}, {u"iso-ir-148", 28599}, {u"iso-ir-149", 949},
    {u"iso-ir-58", 936}, {u"iso-ir-6", 20127}, {u"iso646-us", 20127}, {u"iso8859-1", 28591},
    {u"iso8859-2", 28592}, {u"iso_646.irv:1991", 20127}, {u"iso_8859-1", 28591},
    {u"iso_8859-15", 28605}, {u"iso_8859-1:1987", 28591}, {u"iso_8859-2", 28592},
    {u"iso_8859-2:1987", 28592}, {u"iso_8859-3", 28593}, {u"iso_8859-3:1988", 28593},
    {u"iso_8859-4", 28594}, {u"iso_8859-4:1988", 28594}, {u"iso_8859-5", 28595},
    {u"iso_8859-5:1988", 28595}, {u"iso_8859-6", 28596}, {u"iso_8859-6:1987", 28596},
    {u"iso_8859-7", 28597}, {u"iso_8859-7:1987", 28597}, {u"iso_8859-8", 28598},
    {u"iso_8859-8:1988", 28598}, {u"iso_8859-9", 28599}, {u"iso_8859-9:1989", 28599},
    {u"johab", 1361}, {u"koi", 20866}, {u"koi8", 20866}, {u"koi8-r", 20866}, {u"koi8-ru", 21866},
    {u"koi8-u", 21866}, {u"koi8r", 20866}, {u"korean", 949}, {u"ks-c-5601", 949},
    {u"ks-c5601", 949}, {u"ks_c_5601", 949}, {u"ks_c_5601-1987", 949}, {u"ks_c_5601-1989", 949},
    {u"ks_c_5601_1987", 949}, {u"ksc5601", 949}, {u"ksc_5601", 949}, {u"l1", 28591},
    {u"l2", 28592}, {u"l3", 28593}, {u"l4", 28594}, {u"l5", 28599}, {u"l9", 28605},
    {u"latin1", 28591}, {u"latin2", 28592}, {u"latin3", 28593}, {u"latin4", 28594},
    {u"latin5", 28599}, {u"latin9", 28605}, {u"logical", 28598}, {u"macintosh", 10000},
    {u"ms_kanji", 932}, {u"norwegian", 20108}, {u"ns_4551-1", 20108},
    {u"pc-multilingual-850+euro", 858}, {u"sen_850200_b", 20107}, {u"shift-jis", 932},
    {u"shift_jis", 932}, {u"sjis", 932}, {u"swedish", 20107}, {u"tis-620", 874}, {u"ucs-2", 1200},
    {u"unicode", 1200}, {u"unicode-1-1-utf-7", 65000}, {u"unicode-1-1-utf-8", 65001},
    {u"unicode-2-0-utf-7", 65000}, {u"unicode-2-0-utf-8", 65001}, {u"unicodefffe", 1201},
    {u"us", 20127}, {u"us-ascii", 20127}, {u"utf-16", 1200}, {u"utf-16be", 1201},
    {u"utf-16le", 1200}, {u"utf-32", 12000}, {u"utf-32be", 12001}, {u"utf-32le", 12000},
    {u"utf-7", 65000}, {u"utf-8", 65001}, {u"visual", 28598}, {u"windows-1250", 1250},
    {u"windows-1251", 1251}, {u"windows-1252", 1252}, {u"windows-1253", 1253},
    {u"windows-1254", 1254}, {u"windows-1255", 1255}, {u"windows-1256", 1256},
    {u"windows-1257", 1257}, {u"windows-1258", 1258}, {u"windows-874", 874},
    {u"windows-936", 936}, {u"x-ansi", 1252}, {u"x-chinese-cns", 20000},
    {u"x-chinese-eten", 20002}, {u"x-cp1250", 1250}, {u"x-cp1251", 1251}, {u"x-cp20001", 20001},
    {u"x-cp20003", 20003}, {u"x-cp20004", 20004}, {u"x-cp20005", 20005}, {u"x-cp20261", 20261},
    {u"x-cp20269", 20269}, {u"x-cp20936", 20936}, {u"x-cp20949", 20949}, {u"x-cp50227", 50227},
    {u"x-ebcdic-koreanextended", 20833}, {u"x-euc", 51932}, {u"x-euc-cn", 51936},
    {u"x-euc-jp", 51932}, {u"x-europa", 29001}, {u"x-ia5", 20105}, {u"x-ia5-german", 20106},
    {u"x-ia5-norwegian", 20108}, {u"x-ia5-swedish", 20107}, {u"x-iscii-as", 57006},
    {u"x-iscii-be", 57003}, {u"x-iscii-de", 57002}, {u"x-iscii-gu", 57010},
    {u"x-iscii-ka", 57008}, {u"x-iscii-ma", 57009}, {u"x-iscii-or", 57007},
    {u"x-iscii-pa", 57011}, {u"x-iscii-ta", 57004}, {u"x-iscii-te", 57005},
    {u"x-mac-arabic", 10004}, {u"x-mac-ce", 10029}, {u"x-mac-chinesesimp", 10008},
    {u"x-mac-chinesetrad", 10002}, {u"x-mac-croatian", 10082}, {u"x-mac-cyrillic", 10007},
    {u"x-mac-greek", 10006}, {u"x-mac-hebrew", 10005}, {u"x-mac-icelandic", 10079},
    {u"x-mac-japanese", 10001}, {u"x-mac-korean", 10003}, {u"x-mac-romanian", 10010},
    {u"x-mac-thai", 10021}, {u"x-mac-turkish", 10081}, {u"x-mac-ukrainian", 10017},
    {u"x-ms-cp932", 932}, {u"x-sjis", 932}, {u"x-unicode-1-1-utf-7", 65000},
    {u"x-unicode-1-1-utf-8", 65001}, {u"x-unicode-2-0-utf-7", 65000},
    {u"x-unicode-2-0-utf-8", 65001}, {u"x-x-big5", 950},
};
// clang-format on

constexpr EntryDigits kDigits{2, 5};
constexpr std::size_t kBuckets = 155;
static_assert(isProperList(kEncodings, kDigits));

constexpr BucketTable<kDigits.length, kDigits.code, kBuckets, bucketTextLength(kEncodings, kDigits)>
    kTable(kEncodings);

}  // namespace

platform::CodePage encodingToCodePage(std::u16string_view name) {
  return kTable.find(name, equalIgnoringCase);
}

std::u16string_view encodingBucket(std::u16string_view name) {
  return kTable.bucket(name);
}

}  // namespace brennet
