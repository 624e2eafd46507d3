<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>백업 중…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>연동 해제 중…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>불러오는 중…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>컴퓨터에서 [ProductName]을(를) 제거합니다.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Tarnwell 열기</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>백업 중: %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>이름 변경됨</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>언제나 안전하게, 언제나 가까이 있는 내 파일</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>이 컴퓨터에서 삭제한 파일을 서버에 유지</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>삭제됨</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>동기화 다시 시도</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>마지막 업로드: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>OrvaneLink 중계</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6월</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>서버의 SSL 인증서를 확인할 수 없습니다. 서버 주소를 확인하거나 관리자에게 도움을 요청하십시오.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>입력한 정보 중 일부가 올바르지 않습니다. 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>연동 해제</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>누락되거나 손상된 파일, 바로 가기 및 레지스트리 항목을 교체하여 [ProductName]을(를) 복구합니다.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>%1에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>프록시</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>인증 코드 입력</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>프록시 주소</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>SSL 연결 사용</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Orvane Station 주소 또는 OrvaneLink ID</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>동기화할 폴더 선택</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>로컬 네트워크</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>각 폴더, 동기화 모드 및 필터를 직접 선택합니다.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8월</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>파일 유형</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>일시</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>트레이 아이콘</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>‘%1’ 작업의 연동을 해제하시겠습니까? 이 컴퓨터와 서버에 이미 있는 파일은 삭제되지 않습니다.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>고급</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>폴더 이름</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>동기화 모드</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell이 준비되었습니다.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>설치 프로그램이 [ProductName]을(를) 복구할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>이 폴더를 동기화에서 제외</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>폴더 경로</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>모든 이벤트</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>준비 중…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>연결하려는 서버의 세부사항을 입력하십시오.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName]에는 따로 변경할 수 있는 기능이 없습니다.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>사용자 이름</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>연결 유형 확인 중…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>동기화 문제</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>동기화 데이터베이스를 읽을 수 없습니다. Tarnwell을 다시 시작하십시오. 문제가 계속되면 작업의 연동을 해제하고 다시 설정하십시오.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>서버 할당량을 모두 사용했습니다. 더 이상 필요하지 않은 파일을 삭제하거나 관리자에게 할당량을 늘려 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 정지됨</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>무시</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>환영합니다</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>로그인 시 Tarnwell 시작</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>트레이 아이콘을 오른쪽 클릭하면 작업을 일시 정지하거나, 작업 폴더를 열거나, 작업 설정을 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>파일 크기를 제한하지 않으려면 0을 입력하십시오.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>백업할 폴더 선택</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>토요일</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>최근 변경된 파일</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>이름이 마침표로 시작하는 파일 및 폴더 제외</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>신뢰하고 계속</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>OrvaneLink ID</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 주소</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>새로운 공유 폴더</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>[ProductName] 설치 프로그램</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>[ProductName] 설치 프로그램 완료</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>일부 파일을 동기화할 수 없습니다. 세부사항을 보려면 Tarnwell을 여십시오.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>이 공유 폴더가 있는 디스크가 가득 찼습니다. 다른 디스크의 공유 폴더를 선택하거나 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Tarnwell 업데이트</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>이 OrvaneLink ID는 존재하지 않습니다. ID를 확인하고 다시 입력하십시오.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>‘%1’을(를) 다운로드했습니다.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>프록시 설정</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Orvane Station 이름</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>‘%1’을(를) 목록에서 제거하시겠습니까? 폴더 자체는 삭제되지 않습니다.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>이 사용자 이름을 확인할 수 없습니다. 서버에 연결할 수 있는지 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>마침</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>서버</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>이 컴퓨터의 폴더를 선택하십시오. 폴더의 내용이 서버와 동기화됩니다.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>폴더가 비어 있지 않음</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>이 이름과 정확히 일치하는 파일은 어느 폴더에 있든 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>보안 연결을 설정할 수 없습니다. 서버의 SSL 설정을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>다음 프로그램이 설치 프로그램에서 변경해야 하는 파일을 사용하고 있습니다:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>올바른 OrvaneLink ID가 아닙니다. 영문자, 숫자 및 하이픈만 사용하십시오.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>1에서 65535 사이의 포트 번호를 입력하십시오.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>이 OrvaneLink ID의 Orvane Station이 오프라인입니다. 전원이 켜져 있고 인터넷에 연결되어 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>관리</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>네트워크 설정</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>시스템 오류로 인해 서버를 찾을 수 없습니다. 다시 시도하거나 대신 서버 주소를 입력하십시오.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>서버 할당량을 모두 사용했습니다.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>프록시에 암호 필요</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>다른 항목 선택</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Orvane Station 찾기</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>화살표 두 개는 파일이 동기화되고 있음을 나타냅니다. 빨간색 표시는 확인이 필요함을 나타냅니다.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>StationOS 버전</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>복구를 시작하려면 ‘복구’를 클릭하십시오. 다른 항목을 선택하려면 ‘뒤로’를, 설치 프로그램을 끝내려면 ‘취소’를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>설정이 완료되었습니다.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>이 폴더 사용</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>데스크탑 알림 표시</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>기간</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Tarnwell을 사용하려면 StationOS %1 이상이 필요합니다. Orvane Station을 업데이트하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>유지할 버전 수는 1 이상이어야 합니다.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>지금 [ProductName] 시작</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>프록시의 사용자 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>인터넷</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>설치 준비 완료</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>병합하면 두 폴더의 내용이 하나로 합쳐집니다. 내용이 서로 다른 파일은 충돌로 처리됩니다.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>병합</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>서버의 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>트레이에서 한 번에</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>이 Tarnwell 버전은 서버와 함께 사용하기에 너무 오래되었습니다. Tarnwell을 버전 %1 이상으로 업데이트하십시오.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Tarnwell %1 버전을 사용할 수 있습니다. 업데이트하려면 여기를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>컴퓨터와 서버 양쪽에서 파일이 변경된 경우의 처리 방법을 선택하십시오.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>설치 프로그램이 [ProductName]을(를) 제거할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>업로드 중…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Orvane Station의 OrvaneLink ID를 입력하십시오. 외부에 있을 때도 Tarnwell이 OrvaneLink를 통해 연결합니다.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>이 폴더를 볼 수 있지만 변경사항은 업로드되지 않습니다.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>서버에서 이 컴퓨터로 단방향 동기화</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>‘%1’ 공유 폴더를 동기화할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>StationOS 열기</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>새로운 언어를 적용하려면 Tarnwell을 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>로컬 폴더</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>마지막으로 수정된 버전 유지</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>선택한 폴더 중 동기화할 수 있는 폴더가 없습니다. 다른 폴더를 하나 이상 선택하십시오.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>설치를 시작하려면 ‘설치’를 클릭하십시오. 선택한 내용을 확인하려면 ‘뒤로’를, 설치 프로그램을 끝내려면 ‘취소’를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell은 파일의 이전 버전을 보관하므로 실수를 금방 되돌릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>다른 서버 연동</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>재설정</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>제거 준비 완료</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>이 폴더에 이미 파일이 있습니다. 해당 파일도 동기화됩니다. 이 폴더를 사용하시겠습니까?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>이 설치 프로그램으로 [ProductName]을(를) 복구하거나 컴퓨터에서 제거할 수 있습니다. 계속하려면 ‘다음’을, 설치 프로그램을 끝내려면 ‘취소’를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>제외된 파일</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>이 폴더의 동기화를 켤 수 없습니다. 서버의 권한을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>이 폴더는 이미 동기화 중인 폴더와 겹칩니다. 해당 폴더의 상위 폴더나 하위 폴더가 아닌 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>설치</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>제외된 파일에 아이콘 오버레이 표시</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>프록시의 주소와 포트를 입력하십시오.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>설치 프로그램을 끝내려면 ‘마침’을 클릭하십시오.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>종료일</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>동기화할 파일 유형</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>최대 파일 크기를 %1MB에서 %2MB 사이로 입력하십시오.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>설정 적용 중…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>작업 추가</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>폴더 변경</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>필요 없음</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>이 메시지 다시 보지 않기</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>선택적 동기화를 사용하려면 먼저 서버의 동기화 패키지를 업데이트하십시오.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>제외된 파일 이름</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>백업 대상 위치</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>모든 설정이 끝났습니다. Tarnwell이 파일 백업을 시작했습니다.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>설정을 Tarnwell에 맡기거나 직접 선택하십시오.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>이 파일의 링크를 생성할 수 없습니다. 파일이 업로드되었는지, 파일을 공유할 권한이 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Tarnwell 종료</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11월</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>적합한 폴더 없음</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>선택적 동기화</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>이 폴더들을 동기화에 다시 포함</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>이 파일은 컴퓨터와 서버 양쪽에서 변경되었습니다. 두 버전을 비교하고 필요하지 않은 버전을 삭제하십시오.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12월</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>계속하기 전에 사용권 계약을 자세히 읽으십시오.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>인쇄</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>이전 시점으로 돌아가기</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5월</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>서버의 계정이 비활성화되었습니다. 관리자에게 계정을 활성화해 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>문제가 발생했습니다. 다시 시도하십시오. 문제가 계속되면 Tarnwell을 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>두 버전을 모두 유지하고 더 오래된 버전의 이름 변경</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>파일 잠금 해제 대기 중</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>다운로드 중…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>로컬 폴더에 파일을 넣으면 Tarnwell이 서버에 백업합니다.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>‘%1’ 폴더를 생성할 수 없습니다. 권한을 확인하거나 다른 위치를 선택하십시오.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>서버에서 동기화할 공유 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>[ProductName] 설치 프로그램이 완료되기 전에 취소했습니다. 컴퓨터는 변경되지 않았습니다. 언제든지 설치 프로그램을 다시 실행할 수 있습니다.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>금요일</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3월</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>다음 설정이 사용됩니다:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>다운로드 기록</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>권한 없음</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>이 작업은 비활성 상태입니다. 파일을 다시 동기화하려면 작업을 재개하십시오.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>대기</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>백업을 완료할 수 없습니다. 서버 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>튜토리얼 더 보기</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>이 폴더는 다른 동기화 프로그램에서 사용하고 있습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>방금 전</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>이 프로그램들을 열어 두기(컴퓨터 다시 시작 필요)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>이 폴더와 동기화할 권한이 없습니다. 접근 권한이 있는 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell이 이미 실행 중입니다. 트레이에서 열 수 있습니다.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>다음 필터 중 하나와 일치하는 파일은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>작업 옵션</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>서버 폴더</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2월</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>로컬 폴더가 있는 디스크가 연결되어 있지 않습니다. 디스크를 연결하고 작업을 재개하십시오.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>관리자로 로그인하지 않았으므로 Tarnwell이 현재 계정에만 설치됩니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>내 서버로 컴퓨터를 백업하고 동기화하십시오.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Tarnwell 시작 중…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>서버의 디스크가 가득 찼습니다.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>최대 파일 크기</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>업로드됨</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>모든 준비가 끝났습니다!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>이 폴더는 읽을 수만 있습니다. 파일은 다운로드되지만 변경사항은 업로드되지 않습니다.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>서버 폴더가 현재 연결되지 않은 원격 저장 장치에 있습니다. 관리자에게 다시 연결해 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>같은 이름의 폴더가 이미 있습니다. 두 폴더를 병합하시겠습니까?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>[ProductName]이(가) 이미 설치되어 있음</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1개 항목</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>이 폴더는 마운트 지점이므로 동기화할 수 없습니다. 일반 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>서버에서 이 컴퓨터의 IP 주소를 차단했습니다. 관리자에게 차단을 해제해 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Tarnwell을 업데이트할 수 없습니다. 나중에 다시 시도하거나 최신 버전을 직접 다운로드하십시오.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>이 공유 폴더에 대해 읽기 전용 권한만 있습니다. 파일은 다운로드만 됩니다. 이 폴더를 사용하시겠습니까?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>이 버전의 Tarnwell이 이미 설치되어 있습니다. 다시 설치하시겠습니까?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>연결 중…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Tarnwell을 제대로 시작할 수 없습니다. 컴퓨터를 다시 시작하십시오. 문제가 계속되면 Tarnwell을 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>새로운 동기화 작업</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>프록시 사용 안 함</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>이 컴퓨터의 폴더 선택</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>[ProductName] 변경, 복구 또는 제거</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>파일 이름 또는 파일 확장자를 입력하십시오(예: *.tmp)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>비활성화됨</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>동기화 방향</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>일요일</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>연결 테스트 중…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>튜토리얼 보기</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>연결한 이후 서버의 SSL 인증서가 변경되었습니다. 뒤로 돌아가 다시 연결하여 인증서를 확인하십시오.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>서버의 IP 주소 또는 도메인 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>계정</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>이 계정은 2단계 인증으로 보호되고 있습니다. 인증 코드를 입력하십시오.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>서버에서 시스템 오류를 보고했습니다. 나중에 다시 시도하거나 관리자에게 도움을 요청하십시오.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>설정 확인</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>여기에서 선택 해제한 폴더는 이 컴퓨터에서 제거됩니다. 서버에는 그대로 남아 있습니다.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>서버의 동기화 패키지가 너무 오래되었습니다.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>공유 폴더</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>이 모든 설정은 나중에 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>다운로드가 취소되었습니다.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLink에서 서버에 연결할 수 없습니다. 인터넷 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>최신 상태</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>이름이 다음과 같은 파일은 업로드와 다운로드에서 제외됩니다.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>이 폴더는 네트워크 드라이브에 있습니다. 다른 사람이 변경한 내용을 바로 감지하지 못할 수 있습니다.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>이 폴더는 동기화할 수 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1월</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>첫 페이지</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>비활성</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>이 폴더에 대해 읽기 전용 권한만 있으므로 백업할 수 없습니다. 쓰기 권한이 있는 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>시작하기 전에 서버가 켜져 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>실패 횟수가 너무 많습니다. 몇 분 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>이 컴퓨터와 서버의 연동을 해제하시겠습니까? 모든 작업이 중단되지만 파일은 삭제되지 않습니다.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>이 백업 폴더는 이미 다른 작업에서 사용하고 있습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>문제 발생</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>동기화된 파일에 아이콘 오버레이 표시</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>‘%1’을(를) 목록에서 제거할 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>이 Tarnwell 버전은 너무 오래되었습니다.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>동기화 켜짐</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>이 프로그램들을 닫고 ‘다시 시도’를 클릭하거나, ‘무시’를 클릭하여 계속한 다음 컴퓨터를 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell은 컴퓨터의 파일을 서버에 백업하고 양쪽을 동기화된 상태로 유지합니다.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>사용 중인 파일</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>백업할 항목과 서버에서 저장할 위치를 선택하십시오.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>변경해야 하는 일부 파일이 사용 중입니다.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>이벤트 유형</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>방금 업데이트됨: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>공유 폴더 불러오는 중…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell이 로컬 폴더를 생성하고 바로 백업을 시작합니다.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>다시 연동</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>이 폴더를 동기화에 다시 포함</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>복구</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Tarnwell이 서버에 연결하는 방법을 선택하십시오.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>서버와 연동하는 중…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>지금 Tarnwell이 무엇을 하고 있는지 보려면 아이콘을 이중 클릭하십시오.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell이 이 두 폴더를 동기화된 상태로 유지합니다.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>지금 시작</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>동기화</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Tarnwell 준비 중…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>공유 폴더를 찾을 수 없음</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>이제 로컬 폴더의 파일이 서버에 자동으로 백업됩니다.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>서버의 SSL 인증서가 변경되었습니다. 새로운 인증서를 신뢰하기 전에 관리자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>작업을 설정하는 동안 연결이 끊어졌습니다. 네트워크를 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>파일 %1개 백업 중</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>서버 연결이 끊어졌습니다. Tarnwell이 가능한 한 빨리 다시 연결합니다.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Tarnwell에 오신 것을 환영합니다. 이제 첫 번째 백업을 설정해 보십시오.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>이 공유 폴더의 동기화를 중단하시겠습니까? 이 컴퓨터에 이미 있는 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>병합 모드</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>다운로드됨</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>공간 부족</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>Tarnwell에 관하여</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>로그인 실패</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>이제 서버에 연결되었습니다.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>파일 %2개 중 %1번째 백업 중</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>연결 편집</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>이 서버의 계정에 남은 할당량이 없습니다. 이 작업을 설정하기 전에 관리자에게 할당량을 늘려 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>컴퓨터에서 [ProductName]을(를) 제거하려면 ‘제거’를 클릭하십시오. 다른 항목을 선택하려면 ‘뒤로’를, 설치 프로그램을 끝내려면 ‘취소’를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>사용권 계약의 조항에 동의하지 않음</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>설정에 도움이 필요하십니까?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>동기화할 폴더</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>다운로드 중: %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>기간 직접 설정</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>변경된 설정이 없습니다.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>모든 파일의 상태를 한눈에</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10월</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>이 프로그램들을 닫고 작업이 끝나면 다시 열기</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>암호 확인 중…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>작업 관리</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>보내기:</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>저장하지 않은 변경사항이 있습니다. 변경사항을 버리시겠습니까?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>서버의 디스크가 가득 찼습니다. 서버의 공간을 확보하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>관리자가 2단계 인증을 요구합니다. 먼저 브라우저에서 서버에 로그인하여 2단계 인증을 켜십시오.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>이 공유 폴더의 할당량을 모두 사용했습니다. 더 이상 필요하지 않은 파일을 삭제하거나 다른 공유 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>서버 연동 해제</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>%1 버전으로 업데이트 중…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>[ProductName]을(를) 사용해 주셔서 감사합니다.</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>다음 프록시 설정 사용</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>동기화가 예기치 않게 중단되었습니다. 작업을 재개하십시오. 문제가 계속되면 Tarnwell을 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>시스템 프록시 사용</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>모든 내용이 올바르면 ‘마침’을 클릭하여 작업을 생성하십시오.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>동기화할 하위 폴더</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>요청한 [ProductName] 변경사항을 적용하고 있습니다.</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Tarnwell을 어떻게 설정하시겠습니까?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>OrvaneLink ID란 무엇입니까?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>읽기 전용 폴더</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>로컬 네트워크에서 Orvane Station을 찾을 수 없습니다. 대신 주소 또는 OrvaneLink ID를 입력하십시오.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>[ProductName] 설치 프로그램에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>업데이트된 파일</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>이 컴퓨터에 Tarnwell 폴더 생성</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>이 컴퓨터의 디스크가 가득 찼습니다.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL 암호화</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>로컬 폴더를 찾을 수 없습니다. 폴더를 원래 위치로 다시 옮기거나, 작업의 연동을 해제하고 다시 설정하십시오.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>SSL 인증서 경고</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>사용권 계약</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>변경</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>설치할 [ProductName] 기능을 선택할 수 있습니다.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>이 공유 폴더가 서버에 더 이상 존재하지 않습니다. 다른 공유 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>전송 대기열</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>변경된 파일 찾는 중…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>활성화됨</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>이전 %1페이지</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7월</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>시작하려면 아무 곳이나 클릭하십시오.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>이 폴더들을 동기화에서 제외</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>고급 설정</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>현재 단계:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>복구 준비 완료</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>잠긴 파일</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>서버에서 Tarnwell이 인식할 수 없는 응답을 보냈습니다. 양쪽 모두 최신 버전인지 확인하십시오.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>마운트 지점</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>다음 %1페이지</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>양방향 동기화</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Tarnwell 업데이트 중…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>나와 공유된 폴더</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>트레이 아이콘을 이중 클릭할 때</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>이 파일을 다운로드할 수 없습니다. 서버에서 이동되었거나 삭제되었을 수 있습니다.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>OrvaneLink를 통해 연결 중…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>마지막 페이지</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1일 전</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>다른 폴더 선택</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>동기화하지 않을 파일</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>빠른 설정 모드</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>다른 폴더를 이 서버와 동기화하려면 작업을 추가하십시오.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>오류 발생</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>[ProductName] 제거</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>서버에서 잘못된 요청으로 판단하여 거부했습니다. Tarnwell을 업데이트하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>버전 불일치</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>더 많은 폴더를 동기화하려면 언제든지 Tarnwell에서 작업을 추가하면 됩니다.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>생성일</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>업데이트 필요</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>목요일</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>현재 OrvaneLink를 사용할 수 없습니다. 나중에 다시 시도하거나 대신 Orvane Station의 주소를 입력하십시오.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1분 전</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>상태 세부사항</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>링크 공유</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>지금 업데이트</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>서버 폴더 및 해당 폴더와 동기화할 로컬 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>폴더가 나와 공유되었습니다.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>이제 이 컴퓨터와 서버가 연동되었습니다.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>직접 연결</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>서버에 연결할 수 없습니다. 네트워크 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>다른 서버와 동기화</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>이 컴퓨터의 디스크가 가득 찼습니다. 공간을 확보하고 작업을 재개하십시오.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>이 폴더 동기화</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>지난주</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>데이터 확인 중…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>사용자 이름 또는 암호가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>컴퓨터에 [ProductName]을(를) 설치합니다. 계속하려면 ‘다음’을, 설치 프로그램을 끝내려면 ‘취소’를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>[ProductName] 복구</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>동기화 방향 불일치</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>연결 재개</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>서버에 연결</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>서버 주소를 입력하고 계정으로 로그인하십시오.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>백업할 폴더를 하나 이상 선택하십시오.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>설치 프로그램이 [ProductName]을(를) 설치할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>다음으로 무엇을 하시겠습니까?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>수행할 작업을 선택하십시오.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>SSL 인증서를 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>화요일</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>서버의 동기화 패키지가 너무 오래되었습니다. 관리자에게 버전 %1 이상으로 업데이트해 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>동기화 작업 추가</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>표시할 이벤트 없음</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>사용자 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>공유 폴더가 서버에 마운트되어 있지 않습니다. 관리자에게 마운트해 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>아이콘 오버레이로 파일의 상태를 알 수 있습니다. 초록색 체크 표시는 파일이 최신 상태임을 나타냅니다.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>사용권 계약의 조항에 동의함</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>설치된 기능 변경</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>파일 확장자</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>연결 일시 정지</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>다운로드 전용</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>서버에서 이제 다른 SSL 인증서를 사용합니다. 이 인증서를 신뢰하시겠습니까?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1시간 전</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>완료됨</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>컴퓨터 이름</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>인증 코드가 잘못되었거나 만료되었습니다. 새로운 코드를 입력하십시오.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>설치 프로그램 취소됨</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>제외할 파일 이름 입력</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>일부 파일이 동기화되지 않음</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>시스템 언어</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>고급 설정 마법사</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>흑백 트레이 아이콘 사용</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>연결 유형</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>연결 불안정</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>[ProductName] 설치 프로그램이 아직 완료되지 않았습니다. 설치 프로그램을 끝내시겠습니까?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>‘%1’을(를) 다운로드할 수 없습니다. 서버 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>월요일</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>여기에서 시작되는 백업</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4월</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>오류로 인해 [ProductName] 설치 프로그램이 완료되기 전에 중단되었습니다. 컴퓨터는 변경되지 않았습니다. 다시 시도하려면 설치 프로그램을 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>이 작업의 동기화 방향이 서버의 권한과 일치하지 않습니다. 다른 동기화 방향을 선택하십시오.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>이 공유 폴더를 사용할 권한이 없습니다. 관리자에게 접근 권한을 요청하십시오.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>몇 분 정도 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>고급 설정 모드</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>기존 작업을 사용하거나 다른 폴더에 새로운 작업을 설정할 수 있습니다.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>다른 작업에서 이미 이 폴더를 동기화하고 있습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>동기화 상태 보기</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>계속하면 기존 작업이 대치됩니다. 파일은 삭제되지 않습니다.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>잠시 기다려 주십시오</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>키워드</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>이 폴더의 작업이 이 컴퓨터에 이미 있습니다.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>동기화 작업</translation>
    </message>
    <message>
        <source>From</source>
        <translation>시작일</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>이전 버전 탐색</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>대상 위치</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell이 이 폴더를 색인하는 중</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>이미 존재하는 작업</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>작업을 생성할 수 없습니다. 설정을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>항상 서버에 있는 버전 유지</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>로컬 폴더 선택</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>수요일</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9월</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>공유 폴더는 최대 %1개까지 동기화할 수 있습니다. 다른 폴더를 추가하기 전에 그중 하나의 동기화를 중단하십시오.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>상위 폴더 열기</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>로컬 폴더 열기</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>지난달</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>더 새로운 버전의 Tarnwell이 이미 설치되어 있습니다. 이 버전을 설치하려면 먼저 더 새로운 버전을 제거하십시오.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>이 파일의 이전 버전을 표시할 수 없습니다. 서버 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
</context>
</TS>
