<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>공유 링크</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>끝내기(&amp;X)</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Calderix Drive는 이 컴퓨터의 파일을 NAS와 동기화된 상태로 유지합니다. [지금 시작]을 클릭하여 이 컴퓨터를 NAS와 페어링하십시오.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>업로드 중</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>첫 페이지</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>공유 링크는 최대 %1개까지 만들 수 있습니다.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>%1 MB보다 큰 파일은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>주문형 동기화</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>선택한 폴더는 동기화 폴더로 사용할 수 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>임시 파일 동기화</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Farrowlink 릴레이</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>두 파일을 모두 유지하고 충돌하는 파일의 이름 변경</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>기능이 설치되는 방식을 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>설치 마법사를 사용하여 컴퓨터에 Calderix Drive가 설치되는 방식을 변경하거나, Calderix Drive를 복구 또는 제거할 수 있습니다. 계속하려면 [다음]을 클릭하고, 설치 마법사를 끝내려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1님이 폴더를 공유했습니다.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>[마침] 단추를 클릭하여 설치 마법사를 끝내십시오.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>다른 로컬 폴더나 NAS의 다른 공유 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>설치가 완료되었습니다.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>종료 날짜</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>액세스 횟수 제한</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10월</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>파일 %1개 동기화 중</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>이 항목에 대한 공유 링크를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>서버 주소 세부 정보</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>삭제됨</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>이 폴더의 동기화 방향이 NAS의 설정과 일치하지 않습니다.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>Calderix Drive를 설치하려면 관리자 권한이 필요합니다. 그래도 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>이 폴더는 기존 동기화 폴더와 겹칩니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>동기화 폴더</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>다운로드됨</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>NAS의 저장 공간 할당량이 가득 찼습니다. 공간을 확보하거나 관리자에게 할당량을 늘려 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>관리자가 자동 연결을 취소했습니다.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>일요일</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>설정...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>Calderix Drive 설치가 중간에 종료되었습니다</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>잘못된 매개 변수입니다.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>다음 응용 프로그램이 설치 프로그램에서 업데이트해야 하는 파일을 사용하고 있습니다. 해당 응용 프로그램을 닫고 [다시 시도]를 클릭하거나, [무시]를 클릭하여 그대로 계속할 수 있습니다.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>이 폴더의 색인을 생성하는 중입니다.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11월</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>다운로드 기록</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>양쪽의 파일 병합</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>자습서 표시</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>동기화 폴더 변경</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>양방향 동기화</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>폴더 변경</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>Calderix Drive 정보</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>동기화에서 제외된 파일</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>관리</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>시스템 프록시 설정 사용</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Calderix Drive를 설정할 방법을 선택하십시오.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>지금 시작</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>이 폴더가 있는 디스크의 여유 공간이 부족합니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>디스크 가득 참</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>동기화 모드</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>키워드</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>다른 컴퓨터가 네트워크 드라이브에서 변경한 내용은 즉시 감지되지 않을 수 있습니다.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>사용자 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>사용자 이름과 암호를 확인하는 중...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>공유 폴더</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>NAS의 저장 공간 할당량이 가득 찼습니다. 이 폴더를 동기화하기 전에 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>서버에서 예기치 않은 응답을 보냈습니다.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>로컬 네트워크</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>동기화하는 중...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>%1자 이하로 입력하십시오.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>월요일</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>환영합니다</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>시작하려면 이 컴퓨터를 NAS와 페어링하십시오.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>폴더 변경</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>선택을 해제한 폴더는 이 컴퓨터에서 제거되지만 NAS에는 남아 있습니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Calderix Drive 열기</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>선택적 동기화</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>완료됨</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>최대 파일 크기</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>이 버전의 Calderix Drive는 NAS에 비해 너무 오래되었습니다. Calderix Drive를 업그레이드하십시오.</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>연결이 불안정합니다</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>고급 설정</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>버전 다운로드 중지</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>대상</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1님이 %2 폴더를 공유했습니다.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>이름 변경됨</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>폴더가 비어 있지 않음</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>응용 프로그램을 닫고 다시 시작합니다(&amp;C).</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>달력</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>충돌하는 파일을 별도의 폴더에 보관</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7월</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1은(는) 마운트 지점이므로 동기화 폴더로 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>다음 %1페이지</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>표시할 기록이 없습니다.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>동기화 작업</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>연결을 테스트하는 중...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>이 동기화 작업의 연결을 해제하시겠습니까? 이 컴퓨터와 NAS의 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>연결하는 중...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>오류로 인해 Calderix Drive 설치가 중간에 종료되었습니다. 시스템은 변경되지 않았습니다. 나중에 이 프로그램을 설치하려면 설치 마법사를 다시 실행하십시오.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>NAS와 보안 연결을 설정할 수 없습니다.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>동기화 방향</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>동기화 문제</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>업로드됨</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>NAS와의 연결이 끊어졌습니다.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>NAS가 변경되었습니다</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>NAS의 파일과 충돌하는 이 컴퓨터의 파일은 이름이 변경되어 보관됩니다.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>공유 링크 가져오기</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>버전 불일치</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>%1을(를) 다운로드하지 못했습니다.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>이 컴퓨터의 디스크가 가득 찼습니다.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>선택적 동기화를 사용하려면 NAS 패키지를 업데이트하십시오.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>사용자 이름 또는 암호가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>이 동기화 폴더는 다른 NAS에 속해 있습니다.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>파일 및 폴더에 동기화 상태 아이콘 표시</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>설치가 중단되었습니다.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>%1 폴더가 비어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>설정을 마무리하는 중...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>주문형 동기화를 사용하도록 설정할 수 없습니다.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>다운로드가 중지되었습니다.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>%1에 대한 새 동기화 작업이 만들어집니다.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>이 폴더들의 동기화 재개</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Calderix Drive 복구 준비 완료</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>새 NAS와 동기화</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>NAS의 인증서를 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>연결 ID가 유효하지 않습니다.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>새 버전의 Calderix Drive를 사용할 수 있습니다. 지금 업그레이드하시겠습니까?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>NAS의 인증서가 변경되었습니다.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>동기화 폴더에서 파일을 마우스 오른쪽 단추로 클릭하면 공유 링크를 가져올 수 있습니다.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>폴더가 비어 있지 않습니다. 폴더 내용을 NAS의 폴더와 병합하시겠습니까?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>자세한 정보</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>불러오는 중...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>수행할 작업을 선택하십시오.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>내 파일을 어디서나.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>최종 사용자 사용권 계약</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>연결 해제</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>인터넷</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>업데이트해야 하는 일부 파일이 현재 사용 중입니다.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>설정 키가 이미 구성되어 있습니다.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>시스템 기본값</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>설치 복구</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>사용 시작 날짜</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>이 컴퓨터의 파일 덮어쓰기</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>프록시 서버의 주소와 포트를 입력하십시오.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>선택한 폴더는 읽기 전용입니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>NAS에서 릴레이 연결이 비활성화되어 있습니다.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>업그레이드하는 중...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>복구(&amp;R)</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>이 폴더를 마지막으로 동기화한 후 NAS의 인증서가 변경되었습니다.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Calderix Drive 폴더 만들기</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>동기화되지 않는 파일에 아이콘 표시</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>고급 설정</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>액세스 제한</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; 뒤로(&amp;B)</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>날짜 범위</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>로컬 동기화 폴더 %1을(를) 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>이전 버전 찾아보기</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>연결을 감지하는 중...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>고급 설정 마법사</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>동기화 폴더에 넣은 파일은 NAS와 모든 컴퓨터에서 최신 상태로 유지됩니다.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>공유 링크를 삭제할 수 없습니다.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>제거(&amp;M)</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>서버 주소</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>Calderix Drive 설치 중</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>사용자 이름</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>목요일</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>화요일</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>다른 NAS에 연결됨</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>파일 공유</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>변경(&amp;C)</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>로컬 폴더를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>보안 연결(SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Calderix Drive 설치가 중단되었습니다. 시스템은 변경되지 않았습니다. 나중에 이 프로그램을 설치하려면 설치 마법사를 다시 실행하십시오.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>연결 편집</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>다음(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>이 항목은 다운로드할 수 없습니다.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>로컬 데이터베이스를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>모든 하위 폴더에 적용</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>이 폴더들 동기화 안 함</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1을(를) 다운로드했습니다.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>최근 업데이트된 파일</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>중복된 동기화 작업</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>NAS에서 계정에 2단계 인증을 요구합니다.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>이 공유 링크를 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive가 이미 실행 중입니다.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>보안 경고</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>동기화 상태 열기</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>이 시스템 폴더는 동기화 폴더로 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>이 폴더 동기화 안 함</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>메뉴 막대의 Calderix Drive 아이콘을 클릭하여 동기화 상태를 확인하고 설정을 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>연결되었습니다.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>금요일</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>NAS의 인증서를 확인할 수 없습니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>이 파일은 어떤 연결에도 속하지 않습니다.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>어디서나 액세스</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12월</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>프록시 서버에 암호가 필요함</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>NAS의 동기화 폴더</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>공유 폴더, 로컬 폴더 및 동기화 옵션을 직접 선택합니다.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>이러한 이름의 파일은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Calderix Drive 설치 마법사에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>일부 필드에 잘못된 값이 있습니다.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>설정을 적용하는 중...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Calderix Drive 설치를 취소하시겠습니까?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>설치 마법사가 컴퓨터에 Calderix Drive를 설치합니다. 계속하려면 [다음]을 클릭하고, 설치 마법사를 끝내려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>마운트 지점은 지원되지 않음</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>폴더에서 보기</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>폴더 이름</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS 개요</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>사용권 계약의 조항에 동의합니다(&amp;A)</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Calderix Drive 상태</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>파일 동기화</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>이 버전의 Calderix Drive가 이미 설치되어 있습니다.</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>Calderix Drive 제거</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9월</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1분 전</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>동기화가 일시 중지됨</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>링크가 있는 사람은 누구나 웹 브라우저에서 파일을 열 수 있습니다.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>NAS에서 계정이 비활성화되었습니다.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>무시(&amp;I)</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5월</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>설치 제거</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Calderix Drive를 업그레이드할 수 없습니다.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>NAS에서 사용자 정보를 가져올 수 없습니다.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>연결 유형</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Calderix Drive 설치 준비 완료</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>무시하고 계속</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>만든 날짜</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>폴더 선택적 동기화</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2월</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>Calderix Drive 설치가 중단되었습니다</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>암호가 만료되었습니다. NAS에서 암호를 변경하십시오.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>인증 코드 입력</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>프록시 서버의 사용자 이름 또는 암호가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>만료 날짜</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>이제 파일이 NAS와 동기화됩니다.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>Farrowlink 연결에서는 공유 링크를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>상황에 맞는 메뉴에 Calderix Drive 표시</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>NAS에서 Ostrel 서비스가 비활성화되어 있습니다. 관리자에게 서비스를 활성화해 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>일부 파일을 동기화할 수 없습니다.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>폴더 경로</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>Calderix Drive를 시작하는 중...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1시간 전</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>동기화할 NAS의 폴더와 이 컴퓨터에 저장할 위치를 선택하십시오.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>흑백 메뉴 막대 아이콘 사용</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>비활성</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>이 공유 폴더는 이미 다른 폴더와 동기화되어 있습니다.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>NAS와 페어링된 모든 컴퓨터에서 동기화된 파일을 열 수 있습니다.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>파일 링크를 가져올 수 없습니다.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>프록시 사용 안 함</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>동기화</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>이 필드는 비워 둘 수 없습니다.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>다시 시도(&amp;R)</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>지난주</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>변경 내용을 확인하는 중...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>알겠습니다</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Calderix Drive에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>원격 대상</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>읽기 전용 폴더</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>설치 변경, 복구 또는 제거</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>새 동기화 폴더</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>이 컴퓨터</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>폴더 목록을 불러오는 중...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>다음 응용 프로그램이 이 설치 프로그램에서 업데이트해야 하는 파일을 사용하고 있습니다. 해당 응용 프로그램을 닫고 [다시 시도]를 클릭하여 계속하십시오.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>토요일</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>Farrowlink를 통해 연결</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>같은 이름의 파일이 이미 있습니다.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>NAS와 동기화할 새 폴더를 만듭니다.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>NAS의 인증서가 변경되었습니다. 새 인증서를 신뢰하시겠습니까?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>이 파일의 버전 목록을 표시할 수 없습니다.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>파일 이름 추가</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>%1을(를) 다운로드하는 중...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>실패한 시도가 너무 많습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4월</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>공유 사용</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>최신 상태</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>컴퓨터</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Ostrel 비활성화됨</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>모든 파일이 최신 상태입니다</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>설정 완료</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>동기화 폴더 %1의 볼륨이 마운트되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>이 폴더는 이미 NAS의 동일한 공유 폴더와 동기화되어 있습니다.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>공유 폴더 없음</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>클릭하여 Calderix Drive 업데이트</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>보안 연결(SSL) 사용</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>설치 프로그램이 설치를 시작할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>병합</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>양쪽에서 같은 파일이 변경된 경우:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Calderix Drive 설치를 복구하려면 [복구]를 클릭하십시오. 설치 설정을 검토하거나 변경하려면 [뒤로]를 클릭하십시오. 마법사를 끝내려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>동기화 작업 추가</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>준비 중</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>업데이트하는 중...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>NAS에서 이 버전의 Calderix Drive를 지원하지 않습니다. Calderix Drive를 업그레이드하십시오.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>동기화 사용</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>이 폴더에 액세스할 수 있는 권한이 없습니다.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>%1 폴더는 읽기 전용입니다.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Calderix Drive 업그레이드</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>인증 코드가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>이 컴퓨터가 오프라인일 때에도 파일을 계속 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>데이터를 확인하는 중...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>로그 범주</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>Calderix Drive 실행</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>예(&amp;Y)</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>업그레이드하지 못했습니다.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>동기화 폴더</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>선택적 동기화 모드</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>프록시 설정</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>다시 연결</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3월</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>로그인 실패</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>사용 중인 파일</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>모든 이벤트</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>이 컴퓨터에서 이름 변경됨</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>동기화할 수 있는 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>동기화 폴더</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>단방향 동기화(다운로드만)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>동기화할 NAS의 공유 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>로컬 네트워크에서 NAS 장치 검색</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>컴퓨터에서 Calderix Drive를 제거하려면 [제거]를 클릭하십시오. 설치 설정을 검토하거나 변경하려면 [뒤로]를 클릭하십시오. 마법사를 끝내려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>수동 프록시 구성</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>공유 폴더가 더 이상 NAS에 없습니다.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>이 메시지를 다시 표시하지 않음</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>최신 정보 확인</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>직접 연결</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>이전 %1페이지</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>추가 도움말</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>%1에 연결하는 중...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>1에서 65535 사이의 포트 번호를 입력하십시오.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>파일 선택적 동기화</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>할당량 초과</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>사용자 지정 범위</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Calderix Drive 폴더 열기</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>NAS에 공유 폴더가 마운트되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>설치를 시작하려면 [설치]를 클릭하십시오. 설치 설정을 검토하거나 변경하려면 [뒤로]를 클릭하십시오. 마법사를 끝내려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>볼륨이 마운트되어 있지 않아 원격 폴더를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>데스크톱 알림 표시</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>Calderix Drive를 설치할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>잠김</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>빠른 설정</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>이 폴더의 동기화를 끄면 동기화 목록에서 제거됩니다. 파일은 NAS와 이 컴퓨터에 그대로 남아 있습니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>이 폴더 동기화 재개</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>마지막 페이지</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>링크 삭제</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>설치 취소</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>이 폴더에 대한 동기화 작업이 이미 있습니다.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>이 폴더는 다른 사용자 계정으로 동기화되었습니다.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>변경된 설정이 없습니다.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>아니요(&amp;N)</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>로그인하지 못했습니다. 사용자 이름과 암호를 확인하십시오.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>이 필터와 일치하는 파일은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>NAS의 여유 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>다운로드만</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>연결을 해제하는 중...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>동기화 재개</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Calderix Drive 설치 마법사 완료</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>동기화 폴더 설정</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>설치(&amp;I)</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>자습서</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>%1회 액세스 후 만료</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>두 폴더의 내용이 병합됩니다.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>설치 마법사가 Calderix Drive를 설치하는 동안 기다리십시오.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>다음 달</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>다운로드 중</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>이 작업을 수행할 권한이 없습니다.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>누락되거나 손상된 파일, 바로 가기 및 레지스트리 항목을 수정하여 가장 최근 설치의 오류를 복구합니다.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>이 폴더에 대해 동기화를 사용하도록 설정할 수 없습니다.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>이 파일의 이전 버전이 없습니다.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>동기화 로그 새로 고침</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>컴퓨터에서 Calderix Drive를 제거하려면 [제거]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>컴퓨터에서 Calderix Drive를 제거합니다.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Calderix Drive 복구</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>설정 모드</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>파일 확장자</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>항목 %1개</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>사용 가능한 옵션 없음</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>네트워크</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>NAS로 파일을 동기화하고 공유합니다.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>권한 거부됨</translation>
    </message>
    <message>
        <source>From</source>
        <translation>시작 날짜</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>NAS에서 이름 변경됨</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>설치 마법사가 Calderix Drive를 설치하는 동안 기다리십시오. 몇 분 정도 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>로그인할 때 Calderix Drive 시작</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>이 마법사가 설치 과정을 안내합니다.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>파일 형식</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>가장 최근에 수정된 파일 유지</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>이 컴퓨터는 이미 이 NAS와 페어링되어 있습니다.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>다음 사용권 계약을 자세히 읽어 주십시오.</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>Calderix Drive를 시작할 수 없습니다.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>NAS 패키지가 이 버전의 Calderix Drive에 비해 너무 오래되었습니다. NAS의 패키지를 업데이트하십시오.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>새 공유</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>인증 코드를 입력하십시오.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>프록시</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>외 %1개</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>새 언어는 Calderix Drive를 다시 시작한 후에 적용됩니다.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>Calderix Drive를 초기화하는 중...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>페어링 정보</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>%1과(와)의 연결을 해제하시겠습니까?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6월</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Calderix Drive가 설치되었습니다.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>알 수 없는 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>사용권 계약의 조항에 동의하지 않습니다(&amp;D)</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>대기</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>로컬 네트워크 검색</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>이 컴퓨터의 여유 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>동기화 방식</translation>
    </message>
    <message>
        <source>History</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>로컬 동기화 폴더</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>시스템에서 프로그램을 제거하도록 선택했습니다.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Calderix Drive에는 변경할 수 있는 개별 기능이 없습니다.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>필요 없음</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>이제 Calderix Drive가 파일을 NAS와 동기화합니다.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>변경 내용이 저장되지 않았습니다. 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>언어 변경</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>로컬 대상</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>NAS에서 이 IP 주소의 연결을 차단했습니다.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>최신 버전의 Calderix Drive가 이미 설치되어 있습니다.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>수요일</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>이전 버전 다운로드</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>업그레이드</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>동기화 폴더를 확인하는 중 네트워크 오류가 발생했습니다. 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>인증서 오류</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1일 전</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>Calderix Drive를 복구하려면 [복구]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Calderix Drive를 변경, 복구 또는 제거합니다.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>업데이트된 파일</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>동기화 작업</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>다운로드한 버전 삭제</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>제외된 파일</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>사용자 지정 기간</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>NAS 주소와 사용자 계정을 입력하십시오.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>설치 변경</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>이 폴더는 읽기 전용입니다. 변경 내용이 NAS에 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>다른 폴더 선택</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>시스템 오류로 인해 자동 연결에 실패했습니다.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>최근 변경됨</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Calderix Drive가 준비되었습니다.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>NAS 저장 공간이 가득 참</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>동기화 중: %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8월</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>마침</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>이 공유 폴더의 저장 공간 할당량이 가득 찼습니다.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>준비하는 중...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>방금 전</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>호환되지 않는 버전</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>%1(으)로 보내기</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>이 설정은 언제든지 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>설치하는 동안 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>NAS와 페어링</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>응용 프로그램을 닫지 않습니다(&amp;D). 다시 시작해야 합니다.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>마침(&amp;F)</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>적용 및 링크 복사</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>동기화 일시 중지</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>폴더 추가</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>NAS의 홈 폴더를 이 컴퓨터의 Calderix Drive 폴더와 동기화합니다.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>제거(&amp;R)</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>단방향 다운로드</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>동기화할 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>이전 달</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>NAS에서 홈 폴더 서비스가 비활성화되어 있습니다.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>네트워크 오류가 발생했습니다. 연결 상태를 확인하십시오.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>지난달</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>공유 링크에는 Ostrel 서비스가 필요하지만 NAS에서 비활성화되어 있습니다.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>두 번 클릭 동작</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>주문형 동기화 사용</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>이름이 점으로 시작하는 파일</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>NAS 패키지가 이 버전의 Calderix Drive를 지원하지 않습니다.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>이 컴퓨터가 NAS와 페어링되었습니다.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>프록시 서버</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>자습서 닫기</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>공유 폴더 %1은(는) 이미 %2와(과) 동기화되어 있습니다.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>자동 설정에 실패했습니다. Calderix Drive를 수동으로 설정하십시오.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>동기화 로그 필터링</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1월</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>권한 없음</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>동기화 폴더를 불러오는 중...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>설치가 끝나면 수행할 작업을 선택하십시오.</translation>
    </message>
</context>
</TS>
