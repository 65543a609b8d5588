"""What an author is shown in each language, written out for the tests that look at a whole product."""

import collections

# What refuses a publish without a movie; titles of the sheet and of its second page; a label.
Texts = collections.namedtuple("Texts", "no_movie sheet page certificate")

TEXTS = {
    "cs_CZ": Texts(
        no_movie="Soubor QMV neexistuje. Před publikováním souboru TAV nejprve vytvořte soubor "
                 "QMV pomocí příkazu Testovat film nebo Exportovat film.",
        sheet="Nastavení TAV pro Android", page="Nasazení",
        certificate="Certifikát:"),
    "de_DE": Texts(
        no_movie="Die QMV-Datei ist nicht vorhanden. Erstellen Sie die QMV-Datei zuerst mit dem "
                 'Befehl "Film testen" oder "Film exportieren", bevor Sie die TAV-Datei '
                 "veröffentlichen.",
        sheet="TAV-Einstellungen für Android", page="Bereitstellung",
        certificate="Zertifikat:"),
    "en_US": Texts(
        no_movie="The QMV file does not exist. Use the Test Movie or Export Movie command first "
                 "to create the QMV file before publishing the TAV file.",
        sheet="TAV for Android Settings", page="Deployment",
        certificate="Certificate:"),
    "es_ES": Texts(
        no_movie="El archivo QMV no existe. Antes de publicar el archivo TAV, use el comando "
                 "Probar película o Exportar película para crear el archivo QMV.",
        sheet="Configuración de TAV para Android", page="Implementación",
        certificate="Certificado:"),
    "fr_FR": Texts(
        no_movie="Le fichier QMV n'existe pas. Utilisez d'abord la commande Tester le film ou "
                 "Exporter le film pour créer le fichier QMV avant de publier le fichier TAV.",
        sheet="Paramètres de TAV pour Android", page="Déploiement",
        certificate="Certificat\N{NO-BREAK SPACE}:"),
    "it_IT": Texts(
        no_movie="Il file QMV non esiste. Utilizzare prima il comando Prova filmato o Esporta "
                 "filmato per creare il file QMV, quindi pubblicare il file TAV.",
        sheet="Impostazioni di TAV per Android", page="Distribuzione",
        certificate="Certificato:"),
    "ja_JP": Texts(
        no_movie="QMV ファイルが存在しません。TAV ファイルをパブリッシュする前に、[ムービーのテ"
                 "スト] または [ムービーの書き出し] コマンドを使用して QMV ファイルを作成してく"
                 "ださい。",
        sheet="TAV for Android の設定", page="展開",
        certificate="証明書:"),
    "ko_KR": Texts(
        no_movie="QMV 파일이 없습니다. TAV 파일을 게시하기 전에 먼저 [무비 테스트] 또는 [무비 내"
                 "보내기] 명령을 사용하여 QMV 파일을 만드십시오.",
        sheet="TAV for Android 설정", page="배포",
        certificate="인증서:"),
    "nl_NL": Texts(
        no_movie="Het QMV-bestand bestaat niet. Gebruik eerst de opdracht Film testen of Film "
                 "exporteren om het QMV-bestand te maken voordat u het TAV-bestand publiceert.",
        sheet="Instellingen van TAV voor Android", page="Implementatie",
        certificate="Certificaat:"),
    "pl_PL": Texts(
        no_movie="Plik QMV nie istnieje. Przed opublikowaniem pliku TAV użyj polecenia Testuj "
                 "film lub Eksportuj film, aby utworzyć plik QMV.",
        sheet="Ustawienia TAV dla systemu Android", page="Wdrażanie",
        certificate="Certyfikat:"),
    "pt_BR": Texts(
        no_movie="O arquivo QMV não existe. Use primeiro o comando Testar filme ou Exportar "
                 "filme para criar o arquivo QMV antes de publicar o arquivo TAV.",
        sheet="Configurações do TAV para Android", page="Implantação",
        certificate="Certificado:"),
    "ru_RU": Texts(
        no_movie="Файл QMV не существует. Перед публикацией файла TAV создайте файл QMV с "
                 "помощью команды «Тестировать ролик» или «Экспортировать ролик».",
        sheet="Параметры TAV для Android", page="Развертывание",
        certificate="Сертификат:"),
    "su_DO": Texts(
        no_movie="[su] $_The QMV file does not exist. Use the Test Movie or Export Movie "
                 "command first to create the QMV file before publishing the TAV file._#",
        sheet="[su] $_TAV for Android Settings_#", page="[su] $_Deployment_#",
        certificate="[su] $_Certificate:_#"),
    "sv_SE": Texts(
        no_movie="QMV-filen finns inte. Använd kommandot Testa film eller Exportera film för "
                 "att skapa QMV-filen innan du publicerar TAV-filen.",
        sheet="Inställningar för TAV för Android", page="Distribution",
        certificate="Certifikat:"),
    "tr_TR": Texts(
        no_movie="QMV dosyası yok. TAV dosyasını yayımlamadan önce Filmi Test Et veya Filmi "
                 "Dışarı Aktar komutunu kullanarak QMV dosyasını oluşturun.",
        sheet="TAV for Android Ayarları", page="Dağıtım",
        certificate="Sertifika:"),
    "zh_CN": Texts(
        no_movie="QMV 文件不存在。发布 TAV 文件之前，请先使用“测试影片”或“导出影片”命令创建 QMV "
                 "文件。",
        sheet="TAV for Android 设置", page="部署",
        certificate="证书:"),
    "zh_TW": Texts(
        no_movie="QMV 檔案不存在。發佈 TAV 檔案之前，請先使用 [測試影片] 或 [匯出影片] 命令建立 "
                 "QMV 檔案。",
        sheet="TAV for Android 設定", page="部署",
        certificate="憑證:"),
}
