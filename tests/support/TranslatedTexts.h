// A text of each kind in every language that the host can ask for.
#pragma once

#include <ostream>

#include "platform/Text.h"

namespace qutav::test {

struct TranslatedTexts {
  const char16_t* code;
  const char16_t* missingCertificate;
  const char16_t* cancel;
  const char16_t* passwordTitle;
};

inline void PrintTo(const TranslatedTexts& texts, std::ostream* stream) {
  *stream << ToUtf8(texts.code);
}

inline constexpr TranslatedTexts kTranslatedTexts[] = {
    {u"cs_CZ", u"Zadaný certifikát neexistuje.", u"Storno", u"Heslo digitálního podpisu"},
    {u"de_DE", u"Das angegebene Zertifikat ist nicht vorhanden.", u"Abbrechen",
     u"Kennwort für digitale Signatur"},
    {u"en_US", u"The specified certificate does not exist.", u"Cancel",
     u"Digital signature password"},
    {u"es_ES", u"El certificado especificado no existe.", u"Cancelar",
     u"Contraseña de la firma digital"},
    {u"fr_FR", u"Le certificat spécifié n'existe pas.", u"Annuler",
     u"Mot de passe de la signature numérique"},
    {u"it_IT", u"Il certificato specificato non esiste.", u"Annulla", u"Password firma digitale"},
    {u"ja_JP", u"指定された証明書が存在しません。", u"キャンセル", u"デジタル署名のパスワード"},
    {u"ko_KR", u"지정한 인증서가 없습니다.", u"취소", u"디지털 서명 암호"},
    {u"nl_NL", u"Het opgegeven certificaat bestaat niet.", u"Annuleren",
     u"Wachtwoord voor digitale handtekening"},
    {u"pl_PL", u"Określony certyfikat nie istnieje.", u"Anuluj", u"Hasło podpisu cyfrowego"},
    {u"pt_BR", u"O certificado especificado não existe.", u"Cancelar",
     u"Senha da assinatura digital"},
    {u"ru_RU", u"Указанный сертификат не существует.", u"Отмена", u"Пароль цифровой подписи"},
    {u"su_DO", u"[su] $_The specified certificate does not exist._#", u"[su] $_Cancel_#",
     u"[su] $_Digital signature password_#"},
    {u"sv_SE", u"Det angivna certifikatet finns inte.", u"Avbryt",
     u"Lösenord för digital signatur"},
    {u"tr_TR", u"Belirtilen sertifika yok.", u"İptal", u"Dijital imza parolası"},
    {u"zh_CN", u"指定的证书不存在。", u"取消", u"数字签名密码"},
    {u"zh_TW", u"指定的憑證不存在。", u"取消", u"數位簽章密碼"},
};

}  // namespace qutav::test
