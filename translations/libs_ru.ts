<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>QMMultiMedia::PitchListener</name>
    <message>
        <source>No sound server is running, so the instrument cannot be heard.</source>
        <translation>Звуковой сервер не запущен, поэтому инструмент не слышен.</translation>
    </message>
    <message>
        <source>No microphone is connected, so the instrument cannot be heard.</source>
        <translation>Микрофон не подключён, поэтому инструмент не слышен.</translation>
    </message>
</context>
<context>
    <name>QMMusic::BaseMainPage</name>
    <message>
        <source>Must Have</source>
        <translation>Самое нужное</translation>
    </message>
    <message>
        <source>Nice to Have</source>
        <translation>Приятные мелочи</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Читать</translation>
    </message>
    <message>
        <source>Hear</source>
        <translation>Слушать</translation>
    </message>
    <message>
        <source>See</source>
        <translation>Смотреть</translation>
    </message>
    <message>
        <source>Wikipedia</source>
        <translation>Википедия</translation>
    </message>
</context>
<context>
    <name>QMMusic::BassGuitarTuner</name>
    <message>
        <source>5 Strings</source>
        <translation>5 струн</translation>
    </message>
    <message>
        <source>4 Strings</source>
        <translation>4 струны</translation>
    </message>
</context>
<context>
    <name>QMMusic::BoardBehaviour</name>
    <message>
        <source>Find Note</source>
        <translation>Найти ноту</translation>
    </message>
    <message>
        <source>Training</source>
        <translation>Тренировка</translation>
    </message>
</context>
<context>
    <name>QMMusic::ChordBaseView</name>
    <message>
        <source>Drag&amp;Drop this picture to any editor</source>
        <translation>Перетащите это изображение в любой редактор</translation>
    </message>
</context>
<context>
    <name>QMMusic::ChordsWindow</name>
    <message>
        <source>Guitar</source>
        <translation>Гитара</translation>
    </message>
    <message>
        <source>Bass</source>
        <translation>Бас</translation>
    </message>
    <message>
        <source>Bass, high voicings</source>
        <translation>Бас, высокие позиции</translation>
    </message>
    <message>
        <source>Ukulele</source>
        <translation>Укулеле</translation>
    </message>
    <message>
        <source>Mandolin</source>
        <translation>Мандолина</translation>
    </message>
    <message>
        <source>Banjo</source>
        <translation>Банджо</translation>
    </message>
    <message>
        <source>Balalaika</source>
        <translation>Балалайка</translation>
    </message>
    <message>
        <source>Piano</source>
        <translation>Фортепиано</translation>
    </message>
</context>
<context>
    <name>QMMusic::FavoritesDeleteDlg</name>
    <message>
        <source>Delete the chords</source>
        <translation>Удалить аккорды</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Отмена</translation>
    </message>
</context>
<context>
    <name>QMMusic::FinderLayout</name>
    <message>
        <source>Info</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>Please, stop the training to be able to do other actions.</source>
        <translation>Пожалуйста, остановите тренировку, чтобы выполнять другие действия.</translation>
    </message>
</context>
<context>
    <name>QMMusic::ListenSwitch</name>
    <message>
        <source>The microphone is open</source>
        <translation>Микрофон включён</translation>
    </message>
    <message>
        <source>The microphone is closed</source>
        <translation>Микрофон выключен</translation>
    </message>
    <message>
        <source>The microphone could not be opened.</source>
        <translation>Не удалось включить микрофон.</translation>
    </message>
</context>
<context>
    <name>QMMusic::MetronomeControls</name>
    <message>
        <source>Largo</source>
        <translation>Ларго</translation>
    </message>
    <message>
        <source>38-56</source>
        <translation>38-56</translation>
    </message>
    <message>
        <source>Adagio</source>
        <translation>Адажио</translation>
    </message>
    <message>
        <source>57-70</source>
        <translation>57-70</translation>
    </message>
    <message>
        <source>Andante</source>
        <translation>Анданте</translation>
    </message>
    <message>
        <source>71-96</source>
        <translation>71-96</translation>
    </message>
    <message>
        <source>Moderato</source>
        <translation>Модерато</translation>
    </message>
    <message>
        <source>97-108</source>
        <translation>97-108</translation>
    </message>
    <message>
        <source>Allegro</source>
        <translation>Аллегро</translation>
    </message>
    <message>
        <source>109-168</source>
        <translation>109-168</translation>
    </message>
    <message>
        <source>Presto</source>
        <translation>Престо</translation>
    </message>
    <message>
        <source>169-208</source>
        <translation>169-208</translation>
    </message>
    <message>
        <source>Visible Tick</source>
        <translation>Видимый удар</translation>
    </message>
    <message>
        <source>Audiable Tick</source>
        <translation>Слышимый удар</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Диапазон</translation>
    </message>
</context>
<context>
    <name>QMMusic::ModesPanel</name>
    <message>
        <source>Modes</source>
        <translation>Режимы</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>Must Have</source>
        <translation>Самое нужное</translation>
    </message>
    <message>
        <source>Nice to Have</source>
        <translation>Приятное дополнение</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Читать</translation>
    </message>
    <message>
        <source>Hear</source>
        <translation>Слушать</translation>
    </message>
    <message>
        <source>See</source>
        <translation>Смотреть</translation>
    </message>
    <message>
        <source>Wikipedia</source>
        <translation>Википедия</translation>
    </message>
</context>
<context>
    <name>QMMusic::NotesLernReportDialog</name>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;ОК</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;No report data is available&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Данных для отчёта пока нет&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>QMMusic::NotesLernStatistic</name>
    <message>
        <source>Full Report</source>
        <translation>Полный отчёт</translation>
    </message>
</context>
<context>
    <name>QMMusic::NotesTrainerWidget</name>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>Play to answer</source>
        <translation>Отвечать игрой</translation>
    </message>
</context>
<context>
    <name>QMMusic::NotesWidget</name>
    <message>
        <source>do</source>
        <translation>до</translation>
    </message>
    <message>
        <source>re</source>
        <translation>ре</translation>
    </message>
    <message>
        <source>mi</source>
        <translation>ми</translation>
    </message>
    <message>
        <source>fa</source>
        <translation>фа</translation>
    </message>
    <message>
        <source>sol</source>
        <translation>соль</translation>
    </message>
    <message>
        <source>la</source>
        <translation>ля</translation>
    </message>
    <message>
        <source>si</source>
        <translation>си</translation>
    </message>
</context>
<context>
    <name>QMMusic::Transposer</name>
    <message>
        <source>Add chord</source>
        <translation>Добавить аккорд</translation>
    </message>
    <message>
        <source>Remove selected chord</source>
        <translation>Убрать выбранный аккорд</translation>
    </message>
    <message>
        <source>Transpose</source>
        <translation>Транспонировать</translation>
    </message>
    <message>
        <source>Sound On</source>
        <translation>Звук вкл.</translation>
    </message>
    <message>
        <source>Sound Off</source>
        <translation>Звук выкл.</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Новый</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Сохранить...</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>&amp;Удалить...</translation>
    </message>
    <message>
        <source>Save Favorite</source>
        <translation>Сохранить в избранное</translation>
    </message>
    <message>
        <source>Favorite&apos;s Name:</source>
        <translation>Название:</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Внимание</translation>
    </message>
    <message>
        <source>Can not create the favorite without name</source>
        <translation>Нельзя сохранить избранное без названия</translation>
    </message>
    <message>
        <source>Remove the favorite:
 &quot;</source>
        <translation>Удалить из избранного:
 «</translation>
    </message>
    <message>
        <source>&quot;?</source>
        <translation>»?</translation>
    </message>
</context>
<context>
    <name>QMMusic::TunerBasePage</name>
    <message>
        <source>Listen</source>
        <translation>Слушать</translation>
    </message>
</context>
<context>
    <name>QMMusic::TunersCommonPanel</name>
    <message>
        <source>A4:415Hz (Baroque Pitch)</source>
        <translation>A4:415Гц (барочный строй)</translation>
    </message>
    <message>
        <source>A4:430Hz (Scintific Pitch)</source>
        <translation>A4:430Гц (научный строй)</translation>
    </message>
    <message>
        <source>A4:435Hz (France1859 Pitch)</source>
        <translation>A4:435Гц (Франция 1859)</translation>
    </message>
    <message>
        <source>A4:439Hz (New Philarmonic Pitch)</source>
        <translation>A4:439Гц (новый филармонический строй)</translation>
    </message>
    <message>
        <source>A4:440Hz (Concert Pitch)</source>
        <translation>A4:440Гц (концертный строй)</translation>
    </message>
    <message>
        <source>A4:442Hz (Boston Symphony Orchestra Pitch)</source>
        <translation>A4:442Гц (Бостонский симфонический оркестр)</translation>
    </message>
    <message>
        <source>A4:443Hz (New Berliner Philharmonic Pitch)</source>
        <translation>A4:443Гц (новый строй Берлинской филармонии)</translation>
    </message>
    <message>
        <source>A4:445Hz (Old Berliner Philharmonic Pitch)</source>
        <translation>A4:445Гц (старый строй Берлинской филармонии)</translation>
    </message>
    <message>
        <source>A4:452Hz (Old Philarmonic Pitch)</source>
        <translation>A4:452Гц (старый филармонический строй)</translation>
    </message>
    <message>
        <source>A4:460Hz (Renaissance Pitch)</source>
        <translation>A4:460Гц (строй эпохи Возрождения)</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Строй</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Повтор</translation>
    </message>
    <message>
        <source>App</source>
        <translation>Программа</translation>
    </message>
    <message>
        <source>Rate this App</source>
        <translation>Оценить программу</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Присоединиться</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Другие программы</translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation>Связаться с нами</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>Страница поддержки</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
</context>
<context>
    <name>QMMusic::TunersExplorer</name>
    <message>
        <source>&lt;center&gt;Guitar&lt;/center&gt;</source>
        <translation>&lt;center&gt;Гитара&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;BassGuitar&lt;/center&gt;</source>
        <translation>&lt;center&gt;Бас-гитара&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Ukulele&lt;/center&gt;</source>
        <translation>&lt;center&gt;Укулеле&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Banjo&lt;/center&gt;</source>
        <translation>&lt;center&gt;Банджо&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Violin&lt;/center&gt;</source>
        <translation>&lt;center&gt;Скрипка&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Viola&lt;/center&gt;</source>
        <translation>&lt;center&gt;Альт&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Cello&lt;/center&gt;</source>
        <translation>&lt;center&gt;Виолончель&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;DoubleBass&lt;/center&gt;</source>
        <translation>&lt;center&gt;Контрабас&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Mandolin&lt;/center&gt;</source>
        <translation>&lt;center&gt;Мандолина&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Balalaika&lt;/center&gt;</source>
        <translation>&lt;center&gt;Балалайка&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;Dombra&lt;/center&gt;</source>
        <translation>&lt;center&gt;Домбра&lt;/center&gt;</translation>
    </message>
    <message>
        <source>&lt;center&gt;More Apps&lt;/center&gt;</source>
        <translation>&lt;center&gt;Другие программы&lt;/center&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>&amp;Правовая информация</translation>
    </message>
    <message>
        <source> Info</source>
        <translation> — информация</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;ОК</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Скрыть</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Это приложение использует:&lt;/H3&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source> Updates Check Error</source>
        <translation> – ошибка проверки обновлений</translation>
    </message>
    <message>
        <source>&lt;H3&gt;No internet connection is available,&lt;br&gt;please, check the firewall settings and make sure that&lt;br&gt;you are not using the the internet connection via the proxy server.&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Нет подключения к интернету,&lt;br&gt;пожалуйста, проверьте настройки брандмауэра и убедитесь,&lt;br&gt;что вы не выходите в интернет через прокси-сервер.&lt;/H3&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version of </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Доступна новая версия </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Go to the updates web page?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>.&lt;br&gt;Перейти на страницу обновлений?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the updates web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;У вас последняя доступная версия.&lt;br&gt;Всё равно перейти на страницу обновлений?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>Оценить приложение</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Присоединяйтесь</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Другие приложения</translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation>Связаться с нами</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>Страница поддержки</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>Проверить обновления</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppUpdateDialog</name>
    <message>
        <source>Check for updates on start</source>
        <translation>Проверять обновления при запуске</translation>
    </message>
    <message>
        <source> Updates Notification</source>
        <translation> – обновления</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Never show on start</source>
        <translation>&amp;Больше не показывать при запуске</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> — введение</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
</context>
<context>
    <name>QMWidgets::InputDialog</name>
    <message>
        <source>Ok</source>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>Присоединяйтесь</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>Присоединяйтесь</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Join us and stay informed&lt;br&gt;about our</source>
        <translation>Присоединяйтесь и узнавайте&lt;br&gt;первыми о наших</translation>
    </message>
    <message>
        <source>   1. FREE APP Actions&lt;br&gt;</source>
        <translation>   1. Бесплатных акциях&lt;br&gt;</translation>
    </message>
    <message>
        <source>   2. APP Updates&lt;br&gt;</source>
        <translation>   2. Обновлениях&lt;br&gt;</translation>
    </message>
    <message>
        <source>   3. New APPs&lt;br&gt;</source>
        <translation>   3. Новых приложениях&lt;br&gt;</translation>
    </message>
    <message>
        <source>   4. Important News&lt;br&gt;</source>
        <translation>   4. Важных новостях&lt;br&gt;</translation>
    </message>
    <message>
        <source>   and more...</source>
        <translation>   и многом другом...</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Прервать</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>Да для всех</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>Нет для всех</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MoreAppsButton</name>
    <message>
        <source>More Apps</source>
        <translation>Другие приложения</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>Introduction</source>
        <translation>Введение</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>Оценить</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Другие приложения</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Присоединяйтесь</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>Меню приложения</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateReminderDialog</name>
    <message>
        <source>&lt;br&gt;please rate it in the App Store.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;пожалуйста, оцените его в App Store.&lt;br&gt;Спасибо!</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>&amp;Оценить сейчас</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Maybe Later</source>
        <translation>&amp;Может быть, позже</translation>
    </message>
    <message>
        <source>&amp;Never Ask Me Again</source>
        <translation>&amp;Больше не спрашивать</translation>
    </message>
    <message>
        <source>Help Spread the Word about </source>
        <translation>Расскажите друзьям о </translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>If you like&lt;br&gt;</source>
        <translation>Если вам нравится&lt;br&gt;</translation>
    </message>
    <message>
        <source>&lt;br&gt;please share it with your friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;пожалуйста, поделитесь им с друзьями.&lt;br&gt;Спасибо!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <source>&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;поделитесь им с друзьями.&lt;br&gt;Спасибо!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TopWidget</name>
    <message>
        <source>Title</source>
        <translation>Заголовок</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
</context>
</TS>
