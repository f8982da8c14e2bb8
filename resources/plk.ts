<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>Link udostępniania</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Program Calderix Drive synchronizuje pliki na tym komputerze z serwerem NAS. Kliknij przycisk „Rozpocznij”, aby sparować ten komputer z serwerem NAS.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Przesyłanie</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Pierwsza strona</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>Maksymalna liczba linków udostępniania: %1.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Pliki większe niż %1 MB nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Synchronizacja na żądanie</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>Wybranego folderu nie można użyć jako folderu synchronizacji. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Synchronizuj pliki tymczasowe</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Przekaźnik Farrowlink</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>Zachowaj oba pliki i zmień nazwę pliku powodującego konflikt</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Umożliwia zmianę sposobu instalacji funkcji.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drukuj</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Kreator instalacji umożliwia zmianę sposobu instalacji programu Calderix Drive na komputerze, jego naprawę lub usunięcie. Kliknij przycisk „Dalej”, aby kontynuować, lub przycisk „Anuluj”, aby zakończyć działanie Kreatora instalacji.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 udostępnia Ci folder.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kliknij przycisk „Zakończ”, aby zakończyć działanie Kreatora instalacji.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>Wybierz inny folder lokalny lub inny folder udostępniony na serwerze NAS.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Instalacja została zakończona.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Ogranicz liczbę dostępów</translation>
    </message>
    <message>
        <source>October</source>
        <translation>październik</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synchronizowanie plików: %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Dla tego elementu nie można utworzyć linku udostępniania.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>Szczegóły adresu serwera</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Usunięto</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>Kierunek synchronizacji tego folderu nie jest zgodny z ustawieniem na serwerze NAS.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>Do zainstalowania programu Calderix Drive wymagane są uprawnienia administratora. Czy mimo to chcesz kontynuować?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>Ten folder pokrywa się z istniejącym folderem synchronizacji. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>Foldery synchronizacji</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Pobrano</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>Limit miejsca na serwerze NAS został wyczerpany. Zwolnij trochę miejsca lub poproś administratora o zwiększenie limitu.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>Automatyczne połączenie zostało anulowane przez administratora.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>niedziela</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Ustawienia...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>Instalacja programu Calderix Drive została przedwcześnie przerwana</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Nieprawidłowy parametr.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>Następujące aplikacje używają plików, które Instalator musi zaktualizować. Możesz je zamknąć i kliknąć przycisk „Ponów” lub kliknąć przycisk „Ignoruj”, aby mimo to kontynuować.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>Trwa indeksowanie tego folderu.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>listopad</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Historia pobierania</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>Scalaj pliki z obu stron</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Pokaż samouczek</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Zmień folder synchronizacji</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronizacja dwukierunkowa</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Zmień folder</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>Calderix Drive — informacje</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>Pliki wykluczone z synchronizacji</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Zarządzaj</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Użyj systemowych ustawień serwera proxy</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Wybierz sposób konfiguracji programu Calderix Drive.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Rozpocznij</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>Na dysku tego folderu brakuje wolnego miejsca. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Dysk jest pełny</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Tryb synchronizacji</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Słowo kluczowe</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>Zmiany wprowadzone przez inne komputery na dysku sieciowym mogą nie zostać wykryte od razu.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Wprowadź nazwę użytkownika.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>Trwa sprawdzanie nazwy użytkownika i hasła...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Folder udostępniony</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>Limit miejsca na serwerze NAS został wyczerpany. Zwolnij trochę miejsca przed synchronizacją tego folderu.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>Serwer zwrócił nieoczekiwaną odpowiedź.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Sieć lokalna</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronizowanie...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Maksymalna liczba znaków: %1.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>poniedziałek</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Witamy</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>Aby rozpocząć, sparuj ten komputer z serwerem NAS.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Zmień folder</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>Odznaczone foldery zostaną usunięte z tego komputera, ale pozostaną na serwerze NAS. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Otwórz Calderix Drive</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Synchronizacja selektywna</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Zakończono</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksymalny rozmiar pliku</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>Ta wersja programu Calderix Drive jest zbyt stara dla tego serwera NAS. Uaktualnij program Calderix Drive.</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Połączenie jest niestabilne</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Konfiguracja zaawansowana</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>Zatrzymaj pobieranie wersji</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Miejsce docelowe</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 udostępnia Ci folder %2.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Zmieniono nazwę</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Folder nie jest pusty</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>&amp;Zamknij aplikacje i spróbuj uruchomić je ponownie.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalendarz</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>Zachowaj pliki powodujące konflikt w osobnym folderze</translation>
    </message>
    <message>
        <source>July</source>
        <translation>lipiec</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 jest punktem montowania i nie może być używany jako folder synchronizacji.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Następne strony: %1</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>Brak rekordów do wyświetlenia.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Zadania synchronizacji</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Trwa testowanie połączenia...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>Czy na pewno chcesz odłączyć to zadanie synchronizacji? Pliki na tym komputerze i na serwerze NAS zostaną zachowane.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Łączenie...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Instalacja programu Calderix Drive została przedwcześnie przerwana z powodu błędu. System nie został zmodyfikowany. Aby zainstalować ten program później, uruchom ponownie Kreatora instalacji.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>Nie można nawiązać bezpiecznego połączenia z serwerem NAS.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Kierunek synchronizacji</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problem z synchronizacją</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Przesłano</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>Utracono połączenie z serwerem NAS.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>Serwer NAS został zmieniony</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>Pliki na tym komputerze powodujące konflikt z plikami na serwerze NAS zostaną zachowane pod zmienioną nazwą.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Pobierz link udostępniania</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Niezgodność wersji</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>Pobieranie %1 nie powiodło się.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Dysk tego komputera jest pełny.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>Aby korzystać z synchronizacji selektywnej, zaktualizuj pakiet na serwerze NAS.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Nazwa użytkownika lub hasło są nieprawidłowe.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>Ten folder synchronizacji należy do innego serwera NAS.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Pokazuj ikony stanu synchronizacji na plikach i folderach</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>Instalacja została przerwana.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>Folder %1 nie jest pusty.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Trwa kończenie konfiguracji...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>Nie można włączyć synchronizacji na żądanie.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Pobieranie zostało zatrzymane.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akcja</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>Dla %1 zostanie utworzone nowe zadanie synchronizacji.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Wznów synchronizację tych folderów</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Wszystko gotowe do naprawy programu Calderix Drive</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>Synchronizuj z nowym serwerem NAS</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>Nie można zweryfikować certyfikatu serwera NAS.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>Identyfikator połączenia jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>Dostępna jest nowsza wersja programu Calderix Drive. Uaktualnić teraz?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>Certyfikat serwera NAS uległ zmianie.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>Kliknij prawym przyciskiem myszy plik w folderze synchronizacji, aby uzyskać link udostępniania.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>Folder nie jest pusty. Czy chcesz scalić jego zawartość z folderem na serwerze NAS?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Więcej szczegółów</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Spróbuj ponownie</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wczytywanie...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Wybierz operację, którą chcesz wykonać.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Twoje pliki — wszędzie.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Umowa licencyjna użytkownika końcowego</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Odłącz</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Niektóre pliki, które muszą zostać zaktualizowane, są obecnie używane.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>Klucz konfiguracji został już ustawiony.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Domyślny systemowy</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Napraw instalację</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Dostępne od</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>Zastąp plik na tym komputerze</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Wprowadź adres i port serwera proxy.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>Wybrany folder jest tylko do odczytu. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>Połączenia przez przekaźnik są wyłączone na serwerze NAS.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Trwa uaktualnianie...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Napraw</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>Certyfikat serwera NAS zmienił się od ostatniej synchronizacji tego folderu.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Utwórz folder Calderix Drive</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>Pokazuj ikony na plikach, które nie są synchronizowane</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Ustawienia zaawansowane</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Ogranicz dostęp</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Wstecz</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Zakres dat</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>Nie można znaleźć lokalnego folderu synchronizacji %1.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Przeglądaj poprzednie wersje</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>Trwa wykrywanie połączenia...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Kreator konfiguracji zaawansowanej</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>Pliki umieszczone w folderze synchronizacji są aktualizowane na serwerze NAS i na wszystkich Twoich komputerach.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>Nie można usunąć linku udostępniania.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adres serwera</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>Instalowanie programu Calderix Drive</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>czwartek</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>wtorek</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>Połączono z innym serwerem NAS</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>Udostępniaj pliki</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Zmień</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>Nie można utworzyć folderu lokalnego.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Bezpieczne połączenie (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Instalacja programu Calderix Drive została przerwana. System nie został zmodyfikowany. Aby zainstalować ten program później, uruchom ponownie Kreatora instalacji.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Edytuj połączenie</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Dalej &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Nie można pobrać tego elementu.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Nie można otworzyć lokalnej bazy danych.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>Zastosuj do wszystkich podfolderów</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Nie synchronizuj tych folderów</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>Pobrano %1.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Ostatnio zaktualizowane pliki</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>Zduplikowane zadanie synchronizacji</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>Serwer NAS wymaga weryfikacji dwuetapowej dla Twojego konta.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>Czy chcesz usunąć ten link udostępniania?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Program Calderix Drive jest już uruchomiony.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Ostrzeżenie o zabezpieczeniach</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Otwórz stan synchronizacji</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>Tego folderu systemowego nie można użyć jako folderu synchronizacji.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Nie synchronizuj tego folderu</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>Kliknij ikonę Calderix Drive na pasku menu, aby wyświetlić stan synchronizacji i zmienić ustawienia.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Połączono pomyślnie.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>piątek</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>Nie można zweryfikować certyfikatu serwera NAS. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>Ten plik nie należy do żadnego połączenia.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>Dostęp z każdego miejsca</translation>
    </message>
    <message>
        <source>December</source>
        <translation>grudzień</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Serwer proxy wymaga hasła</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>Folder synchronizacji na serwerze NAS</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Samodzielnie wybierz folder udostępniony, folder lokalny i opcje synchronizacji.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Pliki o tych nazwach nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Witamy w Kreatorze instalacji programu Calderix Drive</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Niektóre pola zawierają nieprawidłowe wartości.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Trwa stosowanie ustawień...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Czy na pewno chcesz anulować instalację programu Calderix Drive?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Kreator instalacji zainstaluje program Calderix Drive na komputerze. Kliknij przycisk „Dalej”, aby kontynuować, lub przycisk „Anuluj”, aby zakończyć działanie Kreatora instalacji.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Punkt montowania nie jest obsługiwany</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Pokaż w folderze</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nazwa folderu</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Przegląd serwera NAS</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>&amp;Akceptuję warunki umowy licencyjnej</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Stan programu Calderix Drive</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>Synchronizuj pliki</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>Ta wersja programu Calderix Drive jest już zainstalowana.</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>Usuń program Calderix Drive</translation>
    </message>
    <message>
        <source>September</source>
        <translation>wrzesień</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 min temu</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>Synchronizacja wstrzymana</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>Każdy, kto ma link, może otworzyć plik w przeglądarce internetowej.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>Twoje konto na serwerze NAS zostało wyłączone.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignoruj</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Usuń instalację</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Nie można uaktualnić programu Calderix Drive.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>Nie można pobrać informacji o użytkowniku z serwera NAS.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Typ połączenia</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Wszystko gotowe do instalacji programu Calderix Drive</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Kontynuuj mimo to</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Foldery</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Utworzono</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Wybierz folder</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>Selektywna synchronizacja folderów</translation>
    </message>
    <message>
        <source>February</source>
        <translation>luty</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>Instalacja programu Calderix Drive została przerwana</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>Twoje hasło wygasło. Zmień je na serwerze NAS.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Wprowadź kod weryfikacyjny</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>Nazwa użytkownika lub hasło serwera proxy są nieprawidłowe.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Data wygaśnięcia</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>Pliki są teraz synchronizowane z serwerem NAS.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>Linki udostępniania nie są dostępne przy połączeniu Farrowlink.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>Pokazuj Calderix Drive w menu kontekstowym</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>Usługa Ostrel jest wyłączona na serwerze NAS. Poproś administratora o jej włączenie.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Nie można zsynchronizować niektórych plików.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ścieżka folderu</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>Trwa uruchamianie programu Calderix Drive...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 godz. temu</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>Wybierz folder na serwerze NAS do synchronizacji oraz miejsce jego przechowywania na tym komputerze.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Używaj czarno-białej ikony na pasku menu</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Nieaktywne</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>Ten folder udostępniony jest już synchronizowany z innym folderem.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>Otwieraj zsynchronizowane pliki na dowolnym komputerze sparowanym z serwerem NAS.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>Nie można pobrać linku do pliku.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Bez serwera proxy</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronizacja</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>To pole nie może być puste.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Ostatni tydzień</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>Trwa sprawdzanie zmian...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Rozumiem</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Witamy w programie Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Zdalne miejsce docelowe</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>Folder tylko do odczytu</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Zmień, napraw lub usuń instalację</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Nowy folder synchronizacji</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ten komputer</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Trwa wczytywanie listy folderów...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>Następujące aplikacje używają plików, które muszą zostać zaktualizowane przez ten Instalator. Zamknij te aplikacje i kliknij przycisk „Ponów”, aby kontynuować.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sobota</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>Połącz przez Farrowlink</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>Plik o tej samej nazwie już istnieje.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>Utwórz nowy folder do synchronizacji z serwerem NAS.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>Certyfikat serwera NAS uległ zmianie. Czy ufasz nowemu certyfikatowi?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>Nie można wyświetlić listy wersji tego pliku.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Dodaj nazwę pliku</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Identyfikator</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Pobieranie: %1...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Zbyt wiele nieudanych prób. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>kwiecień</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Udostępnianie włączone</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktualne</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Usługa Ostrel wyłączona</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>Wszystkie pliki są aktualne</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Wszystko gotowe</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>Wolumin folderu synchronizacji %1 nie jest zamontowany.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>Ten folder jest już synchronizowany z tym samym folderem udostępnionym na serwerze NAS.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>Brak folderu udostępnionego</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Kliknij, aby zaktualizować program Calderix Drive</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Używaj bezpiecznego połączenia (SSL)</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>Instalator jest gotowy do rozpoczęcia instalacji.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scal</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>Gdy ten sam plik został zmieniony po obu stronach:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknij przycisk „Napraw”, aby naprawić instalację programu Calderix Drive. Kliknij przycisk „Wstecz”, aby przejrzeć lub zmienić ustawienia instalacji. Kliknij przycisk „Anuluj”, aby zakończyć działanie kreatora.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>Dodaj zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Przygotowywanie</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Trwa aktualizowanie...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>Ta wersja programu Calderix Drive nie jest obsługiwana przez serwer NAS. Uaktualnij program Calderix Drive.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>Włącz synchronizację</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Nie masz uprawnień dostępu do tego folderu.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>Folder %1 jest tylko do odczytu.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Uaktualnij program Calderix Drive</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Kod weryfikacyjny jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>Twoje pliki pozostają dostępne, nawet gdy ten komputer jest w trybie offline.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Trwa sprawdzanie danych...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>Kategoria dziennika</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>Uruchom program Calderix Drive</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>Uaktualnienie nie powiodło się.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Folder synchronizacji</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>Tryb synchronizacji selektywnej</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Ustawienia serwera proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Połącz ponownie</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzec</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Logowanie nie powiodło się</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Pliki w użyciu</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Wszystkie zdarzenia</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Zmieniono nazwę na tym komputerze</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Brak folderów, które można synchronizować.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Folder synchronizacji</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Synchronizacja jednokierunkowa (tylko pobieranie)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>Wybierz folder udostępniony na serwerze NAS, który chcesz synchronizować.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Wyszukaj serwery NAS w sieci lokalnej</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknij przycisk „Usuń”, aby usunąć program Calderix Drive z komputera. Kliknij przycisk „Wstecz”, aby przejrzeć lub zmienić ustawienia instalacji. Kliknij przycisk „Anuluj”, aby zakończyć działanie kreatora.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Ręczna konfiguracja serwera proxy</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>Folder udostępniony już nie istnieje na serwerze NAS.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Nie pokazuj ponownie tego komunikatu</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Bądź na bieżąco</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Połączenie bezpośrednie</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Poprzednie strony: %1</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Więcej wskazówek</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Łączenie z %1...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Wprowadź numer portu z zakresu od 1 do 65535.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>Selektywna synchronizacja plików</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Limit wyczerpany</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Zakres niestandardowy</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Otwórz folder Calderix Drive</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>Folder udostępniony nie jest zamontowany na serwerze NAS.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknij przycisk „Zainstaluj”, aby rozpocząć instalację. Kliknij przycisk „Wstecz”, aby przejrzeć lub zmienić ustawienia instalacji. Kliknij przycisk „Anuluj”, aby zakończyć działanie kreatora.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>Folder zdalny jest niedostępny, ponieważ jego wolumin nie jest zamontowany.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Pokazuj powiadomienia na pulpicie</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>Instalator jest gotowy do zainstalowania programu Calderix Drive.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Zablokowane</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Szybka konfiguracja</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>Wyłączenie synchronizacji tego folderu usuwa go z listy synchronizacji. Pliki pozostaną na serwerze NAS i na tym komputerze. Kontynuować?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Wznów synchronizację tego folderu</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ostatnia strona</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Usuń link</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Anuluj instalację</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>Zadanie synchronizacji dla tego folderu już istnieje.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>Ten folder był synchronizowany przez inne konto użytkownika.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Nie zmieniono żadnych ustawień.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>Logowanie nie powiodło się. Sprawdź nazwę użytkownika i hasło.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>Pliki pasujące do tych filtrów nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Na serwerze NAS brakuje wolnego miejsca.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Tylko pobieranie</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Trwa odłączanie...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Wznów synchronizację</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Ukończono działanie Kreatora instalacji programu Calderix Drive</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>Ustaw folder synchronizacji</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Zainstaluj</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Samouczek</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>Wygasa po liczbie dostępów: %1</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>Zawartość obu folderów zostanie scalona.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>Poczekaj, aż Kreator instalacji zainstaluje program Calderix Drive.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Następny miesiąc</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Pobieranie</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Nie masz uprawnień do wykonania tej operacji.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Naprawia błędy w najnowszej instalacji, przywracając brakujące i uszkodzone pliki, skróty oraz wpisy rejestru.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>Nie można włączyć synchronizacji dla tego folderu.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>Brak poprzednich wersji tego pliku.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>Odśwież dziennik synchronizacji</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>Kliknij przycisk „Usuń”, aby usunąć program Calderix Drive z komputera.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Usuwa program Calderix Drive z komputera.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Napraw program Calderix Drive</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Tryb konfiguracji</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Rozszerzenie pliku</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementy: %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Brak dostępnych opcji</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>Synchronizuj i udostępniaj pliki za pomocą serwera NAS.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Odmowa dostępu</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>Zmieniono nazwę na serwerze NAS</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>Poczekaj, aż Kreator instalacji zainstaluje program Calderix Drive. Może to potrwać kilka minut.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>Uruchamiaj program Calderix Drive po zalogowaniu</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>Ten kreator przeprowadzi Cię przez proces instalacji.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ pliku</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>Zachowaj ostatnio zmodyfikowany plik</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>Ten komputer jest już sparowany z tym serwerem NAS.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Uważnie przeczytaj poniższą umowę licencyjną.</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>Nie można uruchomić programu Calderix Drive.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>Pakiet na serwerze NAS jest zbyt stary dla tej wersji programu Calderix Drive. Zaktualizuj pakiet na serwerze NAS.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Nowe udostępnienie</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Wprowadź kod weryfikacyjny.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Serwer proxy</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>i jeszcze %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>Nowy język zostanie użyty po ponownym uruchomieniu programu Calderix Drive.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>Trwa inicjowanie programu Calderix Drive...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>Informacje o parowaniu</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>Czy na pewno chcesz się odłączyć od %1?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>czerwiec</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Program Calderix Drive został pomyślnie zainstalowany.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Wystąpił nieznany błąd.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Nie akceptuję warunków umowy licencyjnej</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Tryb gotowości</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Przeszukaj sieć lokalną</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Na tym komputerze brakuje wolnego miejsca.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>Sposób synchronizacji</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokalny folder synchronizacji</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>Wybrano usunięcie programu z systemu.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Program Calderix Drive nie ma niezależnych funkcji do zmiany.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Niepotrzebne</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Program Calderix Drive rozpocznie teraz synchronizację plików z serwerem NAS.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Zmiany nie zostały zapisane. Czy chcesz je zapisać?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Zmień język</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Lokalne miejsce docelowe</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>Połączenia z tego adresu IP są blokowane przez serwer NAS.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>Zainstalowano już nowszą wersję programu Calderix Drive.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stan:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>środa</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>Pobierz poprzednią wersję</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Uaktualnienie</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>Podczas sprawdzania folderu synchronizacji wystąpił błąd sieci. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>Błąd certyfikatu</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 dni temu</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>Kliknij przycisk „Napraw”, aby naprawić program Calderix Drive.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Zmień, napraw lub usuń program Calderix Drive.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Zaktualizowane pliki</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>Usuń pobraną wersję</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Wykluczone pliki</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Niestandardowy czas trwania</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>Wprowadź adres serwera NAS i dane konta użytkownika.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Zmień instalację</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>Ten folder jest tylko do odczytu. Zmiany nie są synchronizowane z serwerem NAS.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Wybierz inny</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>Automatyczne połączenie nie powiodło się z powodu błędu systemu.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Ostatnio zmienione</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Program Calderix Drive jest gotowy.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>Magazyn serwera NAS jest pełny</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synchronizowanie: %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>sierpień</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>Limit miejsca tego folderu udostępnionego został wyczerpany.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Trwa przygotowywanie...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Przed chwilą</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Niezgodna wersja</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Wyślij do: %1</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>Te ustawienia można zmienić w dowolnym momencie.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>Podczas instalacji wystąpił błąd.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Sparuj z serwerem NAS</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>&amp;Nie zamykaj aplikacji. Wymagane będzie ponowne uruchomienie.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Zakończ</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Zastosuj i skopiuj link</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Wstrzymaj synchronizację</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Dodaj folder</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>Synchronizuj folder domowy na serwerze NAS z folderem Calderix Drive na tym komputerze.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Pobieranie jednokierunkowe</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>Wybierz folder, który chcesz synchronizować.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Poprzedni miesiąc</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Usługa folderów domowych jest wyłączona na serwerze NAS.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>Wystąpił błąd sieci. Sprawdź połączenie.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Ostatni miesiąc</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>Linki udostępniania wymagają usługi Ostrel, która jest wyłączona na serwerze NAS.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>Akcja podwójnego kliknięcia</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Włącz synchronizację na żądanie</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>Pliki, których nazwy zaczynają się od kropki</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>Pakiet na serwerze NAS nie obsługuje tej wersji programu Calderix Drive.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>Ten komputer został sparowany z serwerem NAS.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Serwer proxy</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Zamknij samouczek</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>Folder udostępniony %1 jest już synchronizowany z %2.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>Automatyczna konfiguracja nie powiodła się. Skonfiguruj program Calderix Drive ręcznie.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>Filtruj dziennik synchronizacji</translation>
    </message>
    <message>
        <source>January</source>
        <translation>styczeń</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Brak uprawnień</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>Trwa wczytywanie folderów synchronizacji...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>Wybierz, co zrobić po zakończeniu konfiguracji.</translation>
    </message>
</context>
</TS>
