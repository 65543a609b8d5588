#include "packaging/CountryCodes.h"

#include <algorithm>
#include <string_view>

namespace qutav {
namespace {

constexpr std::u16string_view CountryCodeList =
    u"AF;AX;AL;DZ;AS;AD;AO;AI;AQ;AG;AR;AM;AW;AU;AT;AZ;BS;BH;BD;BB;BY;BE;BZ;BJ;BM;"
    u"BT;BO;BA;BW;BV;BR;IO;BN;BG;BF;BI;KH;CM;CA;CV;KY;CF;TD;CL;CN;CX;CC;CO;KM;CG;"
    u"CD;CK;CR;CI;HR;CU;CY;CZ;DK;DJ;DM;DO;EC;EG;SV;GQ;ER;EE;ET;FK;FO;FJ;FI;FR;GF;"
    u"PF;TF;GA;GM;GE;DE;GH;GI;GR;GL;GD;GP;GU;GT;GG;GN;GW;GY;HT;HM;VA;HN;HK;HU;IS;"
    u"IN;ID;IR;IQ;IE;IM;IL;IT;JM;JP;JE;JO;KZ;KE;KI;KP;KR;KW;KG;LA;LV;LB;LS;LR;LY;"
    u"LI;LT;LU;MO;MK;MG;MW;MY;MV;ML;MT;MH;MQ;MR;MU;YT;MX;FM;MD;MC;MN;ME;MS;MA;MZ;"
    u"MM;NA;NR;NP;NL;AN;NC;NZ;NI;NE;NG;NU;NF;MP;NO;OM;PK;PW;PS;PA;PG;PY;PE;PH;PN;"
    u"PL;PT;PR;QA;RE;RO;RU;RW;BL;SH;KN;LC;MF;PM;VC;WS;SM;ST;SA;SN;RS;SC;SL;SG;SK;"
    u"SI;SB;SO;ZA;GS;ES;LK;SD;SR;SJ;SZ;SE;CH;SY;TW;TJ;TZ;TH;TL;TG;TK;TO;TT;TN;TR;"
    u"TM;TC;TV;UG;UA;AE;GB;US;UM;UY;UZ;VU;VE;VN;VG;VI;WF;EH;YE;ZM;ZW";

}  // namespace

std::vector<std::u16string> CountryCodes() {
  std::vector<std::u16string> codes;
  for (std::size_t start = 0; start < CountryCodeList.size();) {
    const std::size_t end = std::min(CountryCodeList.find(u';', start), CountryCodeList.size());
    codes.emplace_back(CountryCodeList.substr(start, end - start));
    start = end + 1;
  }
  return codes;
}

}  // namespace qutav
