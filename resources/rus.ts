<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>Ссылка для общего доступа</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Calderix Drive синхронизирует файлы на этом компьютере с вашим NAS. Нажмите «Начать», чтобы выполнить сопряжение этого компьютера с NAS.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Отправка</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Первая страница</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>Максимальное число ссылок для общего доступа: %1.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Файлы размером более %1 МБ не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Синхронизация по запросу</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>Выбранную папку нельзя использовать как папку синхронизации. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Синхронизировать временные файлы</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Ретрансляция Farrowlink</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>Сохранить оба файла и переименовать конфликтующий файл</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Позволяет изменить способ установки компонентов.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Печать</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Мастер установки позволяет изменить способ установки Calderix Drive на компьютере, восстановить или удалить программу. Нажмите «Далее», чтобы продолжить, или «Отмена», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 предоставляет вам общий доступ к папке.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Нажмите кнопку «Готово», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>Выберите другую локальную папку или другую общую папку на NAS.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Установка завершена.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>По</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Ограничить число обращений</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Октябрь</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Синхронизация файлов: %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Для этого элемента нельзя создать ссылку для общего доступа.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>Сведения об адресе сервера</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Удалено</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>Направление синхронизации этой папки не совпадает с настройкой на NAS.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>Для установки Calderix Drive требуются права администратора. Всё равно продолжить?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>Эта папка пересекается с существующей папкой синхронизации. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>Папки синхронизации</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Только чтение</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Загружено</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>Ваша квота хранилища на NAS исчерпана. Освободите место или попросите администратора увеличить квоту.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>Автоматическое подключение отменено администратором.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Воскресенье</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Настройки...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>Установка Calderix Drive прервана досрочно</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Недопустимый параметр.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>Следующие приложения используют файлы, которые программа установки должна обновить. Закройте их и нажмите «Повторить» или нажмите «Пропустить», чтобы всё равно продолжить.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>Выполняется индексирование этой папки.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Ноябрь</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Журнал загрузок</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>Объединять файлы с обеих сторон</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Показать краткое руководство</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Изменить папку синхронизации</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Двусторонняя синхронизация</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Изменить папку</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>О программе Calderix Drive</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>Файлы, исключённые из синхронизации</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Использовать системные настройки прокси-сервера</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Выберите способ настройки Calderix Drive.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Начать</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>На диске с этой папкой недостаточно свободного места. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Диск заполнен</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Режим синхронизации</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Ключевое слово</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>Изменения, внесённые другими компьютерами на сетевом диске, могут обнаруживаться не сразу.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Введите имя пользователя.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>Проверка имени пользователя и пароля...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Возобновить</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Общая папка</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>Ваша квота хранилища на NAS исчерпана. Освободите место перед синхронизацией этой папки.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>Сервер вернул непредвиденный ответ.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Локальная сеть</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Синхронизация...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Максимальное количество символов: %1.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Понедельник</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>Чтобы начать, выполните сопряжение этого компьютера с вашим NAS.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Изменить папку</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>Папки, с которых вы снимете выбор, будут удалены с этого компьютера, но останутся на NAS. Продолжить?</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Открыть Calderix Drive</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Выборочная синхронизация</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Завершено</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Максимальный размер файла</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>Эта версия Calderix Drive слишком старая для данного NAS. Обновите Calderix Drive.</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Нестабильное подключение</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Расширенная настройка</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>Остановить загрузку версии</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Назначение</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 предоставляет вам общий доступ к папке %2.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Переименовано</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Папка не пуста</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>&amp;Закрыть приложения и попытаться перезапустить их.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Календарь</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>Хранить конфликтующие файлы в отдельной папке</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Июль</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 является точкой подключения и не может использоваться как папка синхронизации.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Следующие %1 стр.</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>Нет записей для отображения.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Задачи синхронизации</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Проверка подключения...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>Вы действительно хотите отключить эту задачу синхронизации? Файлы на этом компьютере и на NAS будут сохранены.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Подключение...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Установка Calderix Drive прервана досрочно из-за ошибки. Система не была изменена. Чтобы установить эту программу позже, снова запустите мастер установки.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>Не удалось установить защищённое соединение с NAS.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Направление синхронизации</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Проблема синхронизации</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Отправлено</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>Соединение с NAS потеряно.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>NAS изменён</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>Файлы на этом компьютере, конфликтующие с файлами на NAS, будут переименованы и сохранены.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Получить ссылку для общего доступа</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Несовпадение версий</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>Не удалось загрузить %1.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Диск этого компьютера заполнен.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>Чтобы использовать выборочную синхронизацию, обновите пакет на NAS.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Неверное имя пользователя или пароль.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>Эта папка синхронизации принадлежит другому NAS.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Показывать значки состояния синхронизации на файлах и папках</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>Установка прервана.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>Папка %1 не пуста.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Завершение настройки...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>Не удалось включить синхронизацию по запросу.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Загрузка остановлена.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>Для %1 будет создана новая задача синхронизации.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Возобновить синхронизацию этих папок</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Всё готово к восстановлению Calderix Drive</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>Синхронизация с новым NAS</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>Не удалось проверить сертификат NAS.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>Недопустимый идентификатор подключения.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>Доступна новая версия Calderix Drive. Обновить сейчас?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>Сертификат NAS изменился.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>Щёлкните файл в папке синхронизации правой кнопкой мыши, чтобы получить ссылку для общего доступа.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>Папка не пуста. Объединить её содержимое с папкой на NAS?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Подробнее</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить попытку</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Загрузка...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Выберите операцию, которую требуется выполнить.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Ваши файлы — везде.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Лицензионное соглашение с конечным пользователем</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Отключить</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Интернет</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Некоторые файлы, которые необходимо обновить, сейчас используются.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>Ключ настройки уже задан.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Системный по умолчанию</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Восстановить установку</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Доступно с</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>Перезаписать файл на этом компьютере</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Введите адрес и порт прокси-сервера.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>Выбранная папка доступна только для чтения. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>Ретрансляционные подключения отключены на NAS.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Обновление...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Восстановить</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>Сертификат NAS изменился с момента последней синхронизации этой папки.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Создать папку Calderix Drive</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>Показывать значки на файлах, которые не синхронизируются</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Дополнительные настройки</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Ограничить доступ</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Назад</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Диапазон дат</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>Не удаётся найти локальную папку синхронизации %1.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Просмотреть предыдущие версии</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>Определение типа подключения...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Мастер расширенной настройки</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>Файлы, помещённые в папку синхронизации, поддерживаются в актуальном состоянии на NAS и на всех ваших компьютерах.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>Не удалось удалить ссылку для общего доступа.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Адрес сервера</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>Установка Calderix Drive</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Четверг</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Вторник</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>Подключено к другому NAS</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>Общий доступ к файлам</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Изменить</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>Не удалось создать локальную папку.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Защищённое соединение (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Отключено</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Установка Calderix Drive прервана. Система не была изменена. Чтобы установить эту программу позже, снова запустите мастер установки.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Изменить подключение</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Далее &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Этот элемент нельзя загрузить.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Не удалось открыть локальную базу данных.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>Применить ко всем вложенным папкам</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Не синхронизировать эти папки</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>Загрузка %1 завершена.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Недавно обновлённые файлы</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>Повторяющаяся задача синхронизации</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>NAS требует двухэтапной проверки для вашей учётной записи.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>Удалить эту ссылку для общего доступа?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive уже запущен.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Предупреждение системы безопасности</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Открыть состояние синхронизации</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>Эту системную папку нельзя использовать как папку синхронизации.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Не синхронизировать эту папку</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>Щёлкните значок Calderix Drive в строке меню, чтобы просмотреть состояние синхронизации и изменить настройки.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Подключение установлено.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Пятница</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>Не удалось проверить сертификат NAS. Продолжить?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>Этот файл не относится ни к одному подключению.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>Доступ отовсюду</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Декабрь</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Прокси-сервер требует пароль</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>Папка синхронизации на NAS</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Самостоятельно выберите общую папку, локальную папку и параметры синхронизации.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Файлы с этими именами не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Вас приветствует мастер установки Calderix Drive</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Некоторые поля содержат недопустимые значения.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Применение настроек...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Вы действительно хотите отменить установку Calderix Drive?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Мастер установки установит Calderix Drive на компьютер. Нажмите «Далее», чтобы продолжить, или «Отмена», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Точка подключения не поддерживается</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Имя папки</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Обзор NAS</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Я &amp;принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Состояние Calderix Drive</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>Синхронизируйте файлы</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>Эта версия Calderix Drive уже установлена.</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>Удаление Calderix Drive</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Сентябрь</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 мин. назад</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>Синхронизация приостановлена</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>Любой, у кого есть ссылка, может открыть файл в веб-браузере.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>Ваша учётная запись на NAS отключена.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Пропустить</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Май</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Удалить установленную программу</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Не удалось обновить Calderix Drive.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>Не удалось получить сведения о пользователе с NAS.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Тип подключения</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Всё готово к установке Calderix Drive</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Всё равно продолжить</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Папки</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Создано</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Выберите папку</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>Выборочная синхронизация папок</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Февраль</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>Установка Calderix Drive прервана</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>Срок действия пароля истёк. Измените его на NAS.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Введите код подтверждения</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>Неверное имя пользователя или пароль прокси-сервера.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Действует до</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>Теперь ваши файлы синхронизируются с NAS.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>Ссылки для общего доступа недоступны при подключении через Farrowlink.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>Показывать Calderix Drive в контекстном меню</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>Служба Ostrel отключена на NAS. Попросите администратора включить её.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Не удалось синхронизировать некоторые файлы.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Путь к папке</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>Запуск Calderix Drive...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 ч назад</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>Выберите папку на NAS для синхронизации и место её хранения на этом компьютере.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Использовать чёрно-белый значок в строке меню</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Неактивно</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>Эта общая папка уже синхронизируется с другой папкой.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>Открывайте синхронизированные файлы с любого компьютера, сопряжённого с NAS.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>Не удалось получить ссылку на файл.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Без прокси-сервера</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Синхронизация</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>Это поле не может быть пустым.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Прошлая неделя</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>Поиск изменений...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Понятно</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Добро пожаловать в Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Удалённая папка назначения</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>Папка только для чтения</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Изменение, восстановление или удаление установки</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Новая папка синхронизации</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Этот компьютер</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Загрузка списка папок...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>Следующие приложения используют файлы, которые должны быть обновлены программой установки. Закройте эти приложения и нажмите «Повторить», чтобы продолжить.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Суббота</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>Подключаться через Farrowlink</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>Файл с таким именем уже существует.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>Создайте новую папку для синхронизации с NAS.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>Сертификат NAS изменился. Доверять новому сертификату?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>Не удаётся получить список версий этого файла.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Добавить имя файла</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ИД</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Загрузка %1...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Слишком много неудачных попыток. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Апрель</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Общий доступ включён</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Актуально</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Компьютер</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Приостановлено</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Служба Ostrel отключена</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>Все файлы актуальны</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Всё готово</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>Том папки синхронизации %1 не подключён.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>Эта папка уже синхронизируется с той же общей папкой на NAS.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>Общая папка отсутствует</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Нажмите, чтобы обновить Calderix Drive</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Использовать защищённое соединение (SSL)</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>Программа установки готова начать установку.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Объединить</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>Если один и тот же файл изменён с обеих сторон:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Нажмите «Восстановить», чтобы восстановить установку Calderix Drive. Нажмите «Назад», чтобы просмотреть или изменить параметры установки. Нажмите «Отмена», чтобы выйти из мастера.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>Добавить задачу синхронизации</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Подготовка</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Обновление...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>Эта версия Calderix Drive не поддерживается NAS. Обновите Calderix Drive.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>Включить синхронизацию</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>У вас нет разрешения на доступ к этой папке.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>Папка %1 доступна только для чтения.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Обновить Calderix Drive</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Неверный код подтверждения.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>Файлы остаются доступными, даже когда этот компьютер не в сети.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Проверка данных...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>Категория журнала</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>Запустить Calderix Drive</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>Не удалось выполнить обновление.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Папка синхронизации</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>Режим выборочной синхронизации</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Настройки прокси-сервера</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Переподключиться</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Март</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Не удалось войти</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Используемые файлы</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Все события</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Переименовано на этом компьютере</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Нет папок, доступных для синхронизации.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Папка синхронизации</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Односторонняя синхронизация (только загрузка)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>Выберите общую папку на NAS, которую нужно синхронизировать.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Поиск устройств NAS в локальной сети</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Нажмите «Удалить», чтобы удалить Calderix Drive с компьютера. Нажмите «Назад», чтобы просмотреть или изменить параметры установки. Нажмите «Отмена», чтобы выйти из мастера.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Настройка прокси-сервера вручную</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>Общая папка больше не существует на NAS.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Больше не показывать это сообщение</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Будьте в курсе</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Прямое подключение</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Предыдущие %1 стр.</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Другие советы</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Подключение к %1...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Введите номер порта от 1 до 65535.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>Выборочная синхронизация файлов</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Квота исчерпана</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Произвольный диапазон</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Открыть папку Calderix Drive</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>Общая папка не подключена на NAS.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Нажмите «Установить», чтобы начать установку. Нажмите «Назад», чтобы просмотреть или изменить параметры установки. Нажмите «Отмена», чтобы выйти из мастера.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>Удалённая папка недоступна, так как её том не подключён.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Показывать уведомления на рабочем столе</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>Программа установки готова к установке Calderix Drive.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Заблокировано</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Быстрая настройка</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>При отключении синхронизации эта папка будет удалена из списка синхронизации. Файлы останутся на NAS и на этом компьютере. Продолжить?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Возобновить синхронизацию этой папки</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Последняя страница</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Удалить ссылку</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Отмена установки</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>Задача синхронизации для этой папки уже существует.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>Эта папка синхронизировалась другой учётной записью пользователя.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Настройки не изменены.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>Не удалось войти. Проверьте имя пользователя и пароль.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>Файлы, соответствующие этим фильтрам, не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>На NAS недостаточно свободного места.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Только загрузка</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Отключение...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Возобновить синхронизацию</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Работа мастера установки Calderix Drive завершена</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>Выбор папки синхронизации</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Установить</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Руководство</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>Истекает после числа обращений: %1</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>Содержимое обеих папок будет объединено.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>Подождите, пока мастер установки устанавливает Calderix Drive.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Следующий месяц</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Загрузка</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>У вас нет разрешения на выполнение этой операции.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Исправляет ошибки последней установки: восстанавливает отсутствующие и повреждённые файлы, ярлыки и записи реестра.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>Не удалось включить синхронизацию для этой папки.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>Предыдущие версии этого файла отсутствуют.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>Обновить журнал синхронизации</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>Нажмите «Удалить», чтобы удалить Calderix Drive с компьютера.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Удаляет Calderix Drive с компьютера.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Восстановление Calderix Drive</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Режим настройки</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Расширение файла</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Элементов: %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Нет доступных параметров</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>Синхронизируйте файлы с NAS и делитесь ими.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Доступ запрещён</translation>
    </message>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>Переименовано на NAS</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>Подождите, пока мастер установки устанавливает Calderix Drive. Это может занять несколько минут.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>Запускать Calderix Drive при входе в систему</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>Этот мастер поможет вам выполнить установку.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Тип файла</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>Сохранить файл, изменённый последним</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>Этот компьютер уже сопряжён с данным NAS.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Внимательно прочитайте следующее лицензионное соглашение.</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>Не удалось запустить Calderix Drive.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>Пакет на NAS слишком старый для этой версии Calderix Drive. Обновите пакет на NAS.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Новый общий ресурс</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Введите код подтверждения.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>и ещё %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>Новый язык будет применён после перезапуска Calderix Drive.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>Инициализация Calderix Drive...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>Сведения о сопряжении</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>Вы действительно хотите отключиться от %1?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Июнь</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Calderix Drive успешно установлен.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Произошла неизвестная ошибка.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Я &amp;не принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Искать в локальной сети</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>На этом компьютере недостаточно свободного места.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>Способ синхронизации</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Локальная папка синхронизации</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>Вы решили удалить программу из системы.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>В Calderix Drive нет отдельных компонентов, которые можно изменить.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Не требуется</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Теперь Calderix Drive начнёт синхронизировать ваши файлы с NAS.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Изменения не сохранены. Сохранить их?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Изменить язык</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Локальная папка назначения</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>Подключения с этого IP-адреса заблокированы на NAS.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>Уже установлена более новая версия Calderix Drive.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Состояние:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Среда</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>Загрузить предыдущую версию</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>При проверке папки синхронизации произошла сетевая ошибка. Повторите попытку.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>Ошибка сертификата</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 дн. назад</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>Нажмите «Восстановить», чтобы восстановить Calderix Drive.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Изменение, восстановление или удаление Calderix Drive.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Обновлённые файлы</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Задача синхронизации</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>Удалить загруженную версию</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Исключённые файлы</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Произвольный срок</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>Введите адрес вашего NAS и данные учётной записи.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Изменить установку</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>Эта папка доступна только для чтения. Изменения не синхронизируются с NAS.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Выбрать другую</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>Автоматическое подключение не выполнено из-за системной ошибки.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Недавно изменённые</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Calderix Drive готов к работе.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>Хранилище NAS заполнено</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Синхронизация: %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Август</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>Квота хранилища этой общей папки исчерпана.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Подготовка...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Только что</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Несовместимая версия</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Отправить в %1</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>Эти параметры можно изменить в любое время.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>Во время установки произошла ошибка.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Сопряжение с NAS</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>&amp;Не закрывать приложения. Потребуется перезагрузка.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Готово</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Применить и скопировать ссылку</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Приостановить синхронизацию</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>Синхронизация вашей домашней папки на NAS с папкой Calderix Drive на этом компьютере.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Односторонняя загрузка</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>Выберите папку, которую нужно синхронизировать.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Предыдущий месяц</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Служба домашних папок отключена на NAS.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>Произошла сетевая ошибка. Проверьте подключение.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Прошлый месяц</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>Для ссылок общего доступа требуется служба Ostrel, которая отключена на NAS.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>Действие по двойному щелчку</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Включить синхронизацию по запросу</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>Файлы, имена которых начинаются с точки</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>Пакет на NAS не поддерживает эту версию Calderix Drive.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>Сопряжение этого компьютера с NAS выполнено.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Прокси-сервер</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Закрыть руководство</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>Общая папка %1 уже синхронизируется с %2.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>Автоматическая настройка не выполнена. Настройте Calderix Drive вручную.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>Фильтр журнала синхронизации</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Январь</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Нет разрешения</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>Загрузка папок синхронизации...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>Выберите действие после завершения настройки.</translation>
    </message>
</context>
</TS>
