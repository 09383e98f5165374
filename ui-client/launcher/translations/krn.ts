<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>연결 해제</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>다른 폴더 선택</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>병합</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>이 파일을 동기화하는 동안 충돌이 발생했습니다.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>잘못된 매개 변수입니다.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>네트워크 오류가 발생했습니다. 네트워크 연결을 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>마침</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>로컬 저장소</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>다시 연결</translation>
    </message>
    <message>
        <source>About</source>
        <translation>프로그램 정보</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>연결 테스트 중...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>선택한 폴더가 비어 있지 않습니다. 폴더 안의 파일이 서버의 파일과 병합됩니다.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>계정 확인 중...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>연결되었습니다.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>&quot;%1&quot; 폴더가 이미 있습니다. 내용을 병합하시겠습니까?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>로그인할 때 Nimbulo Pelora 자동 시작</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>사용자 이름 또는 비밀번호가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>동기화 폴더 변경</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>폴더가 비어 있지 않음</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>폴더 경로</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Nimbulo Pelora 시작하기</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>최근 업데이트된 파일</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>최신 상태</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Nimbulo Pelora 열기</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>변경 사항 감지 중...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>서버와의 연결이 끊어졌습니다.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>동기화 활성화</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>인증 실패</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>직접 연결</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>로컬 네트워크</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>연결 확인 중...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>릴레이 연결</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>인터넷</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>시스템 오류로 인해 자동으로 연결할 수 없습니다.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>서버에서 공유 링크가 비활성화되어 있습니다. 관리자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>파일 %1개 업데이트됨</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>이 폴더에 대한 읽기 전용 권한만 있습니다. 로컬 변경 사항은 업로드되지 않습니다.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>서버의 저장 공간 할당량이 가득 찼습니다. 동기화를 계속하려면 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>연결 유형</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>연결 정보</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>변경</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>자동으로 연결할 수 없습니다. 서버 주소를 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>공유 폴더</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>변경 사항이 저장되지 않았습니다. 변경 사항을 취소하시겠습니까?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>할당량 초과</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>로컬 폴더</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>이 공유 폴더의 동기화를 활성화할 수 없습니다.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>이 폴더는 다른 동기화 작업과 충돌합니다.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>동기화할 수 있는 공유 폴더의 최대 개수에 도달했습니다.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>설정 적용 중...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>1에서 65535 사이의 포트 번호를 입력하십시오.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>공유 폴더</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>프록시 서버 주소와 포트를 입력하십시오.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>사용자 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>수동 프록시 구성</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>프록시 사용 안 함</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>시스템 프록시 설정 사용</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>비밀번호</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>프록시</translation>
    </message>
    <message>
        <source>No changes to apply.</source>
        <translation>적용할 변경 사항이 없습니다.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>사용자 이름</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>프록시 서버 인증 필요</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>파일 업데이트 중...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>충돌하는 변경 사항은 두 사본에 모두 보존됩니다. 로컬 사본의 이름은 컴퓨터 이름을 붙여 변경됩니다.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>서버 주소</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>서버의 IP 주소, 호스트 이름 또는 릴레이 ID를 입력하십시오.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>서버의 동기화 서비스가 오래되었습니다. 관리자에게 업데이트를 요청하십시오.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>데스크톱 알림 표시</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>파일 아이콘에 동기화 상태 표시</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>SSL로 연결 암호화</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>흑백 트레이 아이콘 사용</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>동기화 문제</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 님이 &quot;%2&quot;을(를) 회원님과 공유했습니다.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>새 공유 폴더</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>파일 확인 중...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>선택적 동기화</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>이 규칙과 일치하는 파일 및 폴더는 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>파일 확장자:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Nimbulo Pelora 업데이트 중...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>&quot;%1&quot;의 동기화를 중지하시겠습니까?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>공유 비활성화됨</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>마운트 지점은 지원되지 않음</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>이 동기화 작업을 제거할 수 없습니다.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>새 언어는 Nimbulo Pelora를 다시 시작한 후에 적용됩니다.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>로컬 디스크가 가득 찼습니다. 동기화를 계속하려면 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>이 서버와의 연결을 해제하시겠습니까? 로컬 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>준비 중...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>업로드 중...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>시스템 기본값</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>언어:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>불러오는 중...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>파일 %1개 동기화 중</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>다운로드 중...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>고급 설정</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>파일 이름:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>차단된 파일</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>로컬 동기화 데이터베이스가 손상되었습니다. 이 동기화 작업을 다시 연결하십시오.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>최대 파일 크기:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>파일 필터</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>폴더 이름</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>제외할 파일 형식:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>선택을 해제한 폴더는 이 컴퓨터에서 제거되지만 서버에는 유지됩니다.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>병합 모드</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>동기화 모드</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>연결 편집</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>마운트 지점은 동기화 폴더로 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>대상</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>다운로드가 취소되었습니다.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>지금 시작</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>이 작업을 수행할 권한이 없습니다.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>관리</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>저장 공간 할당량이 가득 찼습니다</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>로컬 디스크가 가득 찼습니다</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>권한 거부됨</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>버전 불일치</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>서버에서 계정 정보를 가져올 수 없습니다.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>동기화 문제 감지됨</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>컴퓨터 이름</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>연결이 불안정합니다. 다시 시도하는 중...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>%1 다운로드 중...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>연결 중...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>동기화 다시 시도 중...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>보안 경고</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>활성화됨</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>다운로드가 완료되었습니다.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>무시하고 계속</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>필터 규칙</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>이전 버전 찾아보기</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>비활성화됨</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>&quot;%1&quot;의 동기화를 중지하면 로컬 사본이 제거됩니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>보안 연결</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>파일을 동기화할 이 컴퓨터의 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>외 %1개</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>공유</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>파일을 다운로드할 수 없습니다.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>개요</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>서버가 교체되었거나 초기화되었습니다</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>인증서 확인 실패</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>동기화 중...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>서버의 SSL 인증서를 확인할 수 없습니다. 연결이 안전하지 않을 수 있습니다.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>완료됨</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>이 동기화 작업은 비활성 상태입니다. 재개하려면 클릭하십시오.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>비활성</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>지금은 이 파일을 다운로드할 수 없습니다.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>이 파일의 이전 버전 목록을 가져올 수 없습니다.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>이 파일의 공유 링크를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>대기</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>동기화 폴더를 열려면 트레이 아이콘을 두 번 클릭하십시오</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>폴더 색인 생성 중...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Nimbulo Pelora 설치 마법사 시작</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Nimbulo Pelora를 초기화할 수 없습니다.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; 뒤로</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Nimbulo Pelora 설치 준비 완료</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>업데이트해야 하는 일부 파일이 현재 사용 중입니다.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>최종 사용자 사용권 계약</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Nimbulo Pelora 설치 마법사 완료</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>인쇄</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>응용 프로그램을 닫지 않습니다. 재부팅이 필요합니다.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>설치 오류</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>설치 마법사를 종료하려면 [마침] 단추를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora가 설치되었습니다.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Nimbulo Pelora 실행</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>설치 변경, 복구 또는 제거</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>기능의 설치 방법을 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>동기화 폴더가 마운트되지 않은 볼륨에 있습니다.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>파일 버전이 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Nimbulo Pelora 설치를 취소하시겠습니까?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>다운로드만</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>이 폴더에 대한 읽기 전용 액세스 권한만 있습니다. 여기서 변경한 내용은 업로드되지 않습니다.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>다음 사용권 계약을 자세히 읽으십시오.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>계속하려면 사용권 계약을 읽고 동의하십시오.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>설치 취소</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora는 이 컴퓨터의 파일을 NAS와 동기화된 상태로 유지합니다.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>무시</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>설치</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>다음 &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>복구</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>동기화 상태</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>로컬 동기화 폴더 &quot;%1&quot;을(를) 찾을 수 없습니다. 이동되었거나 삭제되었을 수 있습니다.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>오류로 인해 Nimbulo Pelora 설치가 중간에 종료되었습니다. 시스템은 변경되지 않았습니다.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>나중에 이 프로그램을 설치하려면 설치 마법사를 다시 실행하십시오. 종료하려면 [마침]을 클릭하십시오.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>설치가 중간에 종료됨</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>모든 응용 프로그램을 닫고 다시 시작을 시도합니다.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>설치 프로그램이 업데이트해야 하는 파일을 사용하는 응용 프로그램을 닫으십시오.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>다음 응용 프로그램이 설치 프로그램에서 업데이트해야 하는 파일을 사용하고 있습니다. 이 응용 프로그램을 닫고 [다시 시도]를 클릭하여 계속하십시오.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>누락되거나 손상된 파일, 바로 가기 및 레지스트리 항목을 수정하여 최근 설치의 오류를 복구합니다.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>다음 응용 프로그램이 업데이트해야 하는 파일을 사용하고 있습니다.\n이 응용 프로그램을 닫거나, 설치 프로그램이 닫고 다시 시작하도록 하십시오.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>사용 중인 파일</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora에는 선택할 수 있는 개별 기능이 없습니다.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>설치된 기능 변경</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>수행할 작업을 선택하십시오.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>컴퓨터에서 Nimbulo Pelora를 제거합니다.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>설치 제거</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>설치 복구</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>수행할 작업을 선택하십시오.\n동기화 설정은 유지됩니다.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>설치 마법사를 사용하여 Nimbulo Pelora의 설치 방법을 변경하거나, 복구하거나, 컴퓨터에서 제거할 수 있습니다. 계속하려면 [다음]을, 종료하려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Nimbulo Pelora 설치 시작</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>설치 마법사가 Nimbulo Pelora를 설치하는 동안 기다려 주십시오.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>몇 분 정도 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Nimbulo Pelora 설치 중...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Nimbulo Pelora 설치 중</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>설치를 시작하려면 [설치]를 클릭하십시오. 설치 설정을 검토하거나 변경하려면 [뒤로]를 클릭하십시오. 마법사를 종료하려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>설치 마법사에서 설치를 시작할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>시작하려면 [설치]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>컴퓨터에서 Nimbulo Pelora를 제거하려면 [제거]를 클릭하십시오. 동기화된 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>설치 마법사에서 Nimbulo Pelora를 제거할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>시작하려면 [제거]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Nimbulo Pelora 제거</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Nimbulo Pelora 설치를 복구하려면 [복구]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>설치 마법사에서 Nimbulo Pelora를 복구할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>시작하려면 [복구]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Nimbulo Pelora 복구</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>Nimbulo Pelora 설치가 중단되었습니다. 시스템은 변경되지 않았습니다.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>나중에 이 프로그램을 설치하려면 설치를 다시 실행하십시오. 마법사를 종료하려면 [마침]을 클릭하십시오.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>설치 중단됨</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>설치 마법사가 컴퓨터에 Nimbulo Pelora를 설치합니다. 계속하려면 [다음]을, 종료하려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Nimbulo Pelora를 변경, 복구 또는 제거합니다.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>설치가 완료되었습니다.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>설치가 취소되었습니다.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>설치 중에 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>이 마법사가 설치 과정을 안내합니다.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>사용권 계약 조건에 동의합니다</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>다른 NAS에 연결</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>동기화 기록</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>동기화 활성화됨</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>동기화할 폴더</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>모든 기기에서 만나는 내 파일.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>이제 파일이 백그라운드에서 동기화됩니다. 파일은 %1에서 찾을 수 있습니다.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>동기화 작업 &quot;%1&quot;의 연결을 해제하시겠습니까? 이 컴퓨터에 이미 있는 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>파일 필터</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>만든 날짜</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>동기화되지 않는 파일에 아이콘 표시</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>릴레이 ID &quot;%1&quot;이(가) 존재하지 않습니다.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>환경설정</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>동기화 작업</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>서버가 변경되었습니다. 동기화 작업을 확인하십시오.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>공유 폴더가 서버에 마운트되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>원격 폴더를 사용할 수 없습니다. 마운트되지 않은 암호화된 공유 폴더에 있을 수 있습니다.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>점으로 시작하는 파일</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1이(가) 이미 설치되어 있습니다.\n다시 설치하시겠습니까?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>Nimbulo Pelora를 설치하려면 관리자 권한이 필요합니다.\n관리자 권한으로 설치 프로그램을 실행하십시오.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Nimbulo Pelora로 파일 동기화</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>LinkVane 연결을 통해서는 파일 공유를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>화</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>포함 폴더 열기</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Nimbulo Pelora를 설정할 방법을 선택하십시오.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>빠른 설정</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>동기화 폴더에서 파일을 마우스 오른쪽 단추로 클릭하면 공유하거나 이전 버전을 찾아볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>알겠습니다</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>언제든지 트레이 메뉴를 열어 동기화 중인 항목을 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>변경한 내용은 저장하는 즉시 업로드됩니다.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1시간 전</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>이 폴더 동기화 안 함</translation>
    </message>
    <message>
        <source>History</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>이 컴퓨터와 동기화할 새 폴더를 NAS에 만듭니다.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>시작일</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>이미 동기화된 폴더</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>이 폴더는 이미 다른 동기화 작업에서 동기화하고 있습니다.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 바꾸기</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>동기화 준비 중...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>최근 변경됨</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1일 전</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>방금</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1분 전</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>항목 %1개</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>수정한 시간</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>키워드</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>지난달</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>지난주</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>이 폴더 동기화 재개</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>이 폴더들 동기화 재개</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>이 폴더들 동기화 안 함</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>데이터 없음</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>보내기</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>현재 동기화 중: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>파일 이름으로 검색</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>파일 형식</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>금</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>이벤트</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>모든 이벤트</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>사용자 지정</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>날짜 범위</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>다운로드</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>To</source>
        <translation>종료일</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>업로드</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>월</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>4월</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>8월</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>12월</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>2월</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>1월</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>7월</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>6월</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>3월</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5월</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>11월</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>10월</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>9월</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>토</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>일</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>목</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>수</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>고급 모드</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>이 메시지를 다시 표시하지 않음</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>이제 파일이 NAS의 &quot;%1&quot; 폴더와 동기화되고 있습니다.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora 설정이 완료되었습니다. 이제 NAS의 홈 폴더가 이 컴퓨터와 동기화됩니다.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>설정 완료</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>동기화 폴더에 넣은 파일은 NAS와 다른 기기에서 항상 최신 상태로 유지됩니다.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>트레이 아이콘으로 동기화 상태를 한눈에 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>설정 모드</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>NAS의 홈 폴더를 이 컴퓨터의 폴더와 동기화합니다.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>괜찮습니다</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>환영합니다</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>동기화 폴더</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>트레이 아이콘</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>공유 및 버전</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>로컬 네트워크에서 NAS 검색</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>LinkVane으로 연결</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>비밀번호:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>사용자 이름:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Nimbulo Pelora에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>메인 창 표시</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>업데이트 있음</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>NAS의 폴더</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>새 동기화 폴더</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>새 폴더 동기화</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>고급 설정 모드</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>동기화 상태 열기</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>동기화할 NAS 폴더, 이 컴퓨터에 보관할 위치, 동기화 방법을 선택합니다.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>%1MB보다 큰 파일은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>로컬 네트워크에서 NAS 찾기</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>&quot;%1&quot;에 대한 읽기 권한만 있습니다. 이 컴퓨터에서 변경한 내용은 업로드되지 않습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>&quot;%1&quot;은(는) 동기화 폴더로 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>추가 도움말</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>&quot;%1&quot; 폴더가 다른 작업의 동기화 폴더와 겹칩니다.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>이 폴더는 이미 &quot;%1&quot;과(와) 동기화되어 있습니다.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>&quot;%1&quot; 폴더는 이미 NAS의 폴더와 동기화되어 있습니다.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>선택한 위치에 &quot;Nimbulo&quot; 폴더 만들기</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>공유 링크 복사</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>서버에서 공유가 비활성화되어 있어 공유 링크를 가져올 수 없습니다.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>서버의 SSL 인증서가 변경되었습니다. 새 인증서를 신뢰하시겠습니까?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>이 IP 주소에서는 이 서버에 연결할 수 없습니다.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>같은 파일이 양쪽에서 모두 변경된 경우:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>동기화 방향이 이 폴더의 권한과 일치하지 않습니다.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>마지막 페이지</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>첫 페이지</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>이전 %1페이지</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>다음 %1페이지</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>연결 해제 중...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>실패한 시도가 너무 많습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>다른 응용 프로그램에서 이 파일을 잠갔습니다.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>네트워크 오류로 인해 &quot;%1&quot;을(를) 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>가장 최근에 수정된 버전 유지</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>양방향 동기화</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>NAS 주소와 계정 정보를 입력하십시오.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>로컬 폴더 &quot;%1&quot;을(를) 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>서로 동기화할 NAS의 폴더와 이 컴퓨터의 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>동기화 폴더 설정</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora가 NAS의 &quot;%1&quot;을(를) 이 컴퓨터의 &quot;%2&quot;과(와) 동기화하고 있습니다.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>파일이 충돌하면 서버의 사본이 유지되고 로컬 사본은 백업됩니다.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>온디맨드 동기화 활성화</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>인증 코드가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>이 계정에는 인증 코드가 필요합니다.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>인증 앱에 표시된 인증 코드를 입력하십시오:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>NAS의 할당량이 가득 찼습니다. &quot;%1&quot;을(를) 동기화할 수 없습니다.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>서버 인증서가 변경되었습니다. &quot;%1&quot;을(를) 동기화할 수 없습니다.</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>서버 인증서를 확인할 수 없습니다. &quot;%1&quot;을(를) 동기화할 수 없습니다.</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>동기화 폴더를 확인하는 동안 시스템 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>서버의 사본으로 로컬 사본 덮어쓰기</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>두 사본을 모두 유지하고 로컬 사본의 이름 변경</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>최신 버전의 Nimbulo Pelora(%1)가 이미 설치되어 있습니다.\n설치 프로그램을 종료합니다.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora 사용 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora 초기화 중...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>동기화할 수 있는 폴더를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>튜토리얼 표시</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>로컬 폴더의 파일이 NAS의 파일과 병합됩니다.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>컴퓨터가 시작될 때 Nimbulo Pelora 시작</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Nimbulo Pelora에 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora가 실행 중입니다.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>이 버전의 Nimbulo Pelora는 더 이상 지원되지 않습니다. 업데이트하십시오.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>클릭하여 Nimbulo Pelora 업데이트</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>선택적 동기화를 사용하려면 서버의 동기화 서비스를 업데이트하십시오.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>이 컴퓨터의 여유 공간이 부족하여 &quot;%1&quot;을(를) 동기화할 수 없습니다.</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>동기화를 시작하려면 NAS에 로그인하십시오.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>이 컴퓨터의 파일을 NAS와 동기화된 상태로 유지합니다.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>공유 폴더를 찾을 수 없음</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>Nimbulo Pelora 정보</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>관리자가 2단계 인증을 요구합니다. 먼저 계정 설정에서 2단계 인증을 활성화하십시오.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>공유 폴더의 할당량이 가득 찼습니다.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>동기화 방향</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Nimbulo Pelora에서 동기화하는 동안 문제가 발생했습니다. 자세한 내용을 보려면 클릭하십시오.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora는 모든 기기에서 파일을 최신 상태로 유지합니다.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>일부 필드에 잘못된 값이 있습니다.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>&quot;%1&quot;에 액세스할 권한이 없습니다.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>계정이 비활성화되었습니다. &quot;%1&quot;을(를) 동기화할 수 없습니다.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>만료 기간</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>사용할 수 있는 옵션 없음</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>동기화 서비스가 설치된 NAS의 계정이 필요합니다.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>인증에 실패했습니다. 사용자 이름과 비밀번호를 확인하십시오.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>*는 임의의 문자와 일치합니다. 여러 항목은 쉼표로 구분하십시오.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>단방향 다운로드</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>&quot;%1&quot; 폴더가 이미 있습니다.</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>확장 속성 동기화</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>사용권 계약 조건에 동의하지 않습니다</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>공유 링크</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>만료 날짜</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>필수 입력 항목입니다.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>계정이 있는 사용자로 액세스 제한</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>상황에 맞는 메뉴에 Nimbulo Pelora 표시</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>NAS에서 홈 폴더 서비스가 비활성화되어 있습니다.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Nimbulo Pelora를 업데이트할 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>적용 및 링크 복사</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>액세스 횟수 제한</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>사용 시작 날짜</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>이 서버에 연결하려면 새 버전의 Nimbulo Pelora가 필요합니다. 지금 업데이트하시겠습니까?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>파일 이름 추가</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>로컬 대상</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>원격 NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>이 컴퓨터</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>선택한 버전 다운로드</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>사용자 지정 기간</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>동기화 기록 새로 고침</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>온디맨드 동기화</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>동기화 기록 필터링</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>폴더 추가</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>달력</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>다음 달</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>이전 달</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>동기화 폴더 변경</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>이벤트 범주</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>동기화 작업 세부 정보</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>원격 대상</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>튜토리얼 닫기</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>튜토리얼: Nimbulo Pelora 사용 방법을 알아봅니다.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>다운로드 취소</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>버전 삭제</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>&quot;%1&quot;에 대해 온디맨드 동기화를 활성화할 수 없습니다.</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>서버에 연결되어 있지 않아 이 파일을 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>이 컴퓨터에서 이름 변경됨</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>서버에서 이름 변경됨</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>%1자 이하로 입력하십시오.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>비밀번호가 만료되었습니다. 서버에서 비밀번호를 변경한 후 다시 로그인하십시오.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>이 폴더는 다른 사용자가 동기화했던 폴더입니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>서버에서 릴레이 연결이 비활성화되어 있습니다.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>&quot;%1&quot;에 대한 인증에 실패했습니다. 다시 로그인하십시오.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>이 파일의 링크를 가져올 수 없습니다.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>임시 파일</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>나중에</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>축하합니다!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>다른 사용자가 나와 공유한 폴더</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>이 폴더에 대한 읽기 전용 액세스 권한만 있습니다. 여기서 변경한 내용은 이 컴퓨터에만 남습니다.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora가 서버의 &quot;%1&quot;을(를) 이 컴퓨터의 &quot;%2&quot;과(와) 동기화하고 있습니다.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Nimbulo Pelora 튜토리얼 표시</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora가 백그라운드에서 실행 중입니다.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>동기화를 시작하려면 서버에 로그인하십시오.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Nimbulo Pelora를 업데이트할 수 없습니다. 최신 버전을 다운로드하여 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>동기화 서비스가 설치된 서버의 계정이 필요합니다.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>충돌하는 변경 사항은 두 사본에 모두 보존됩니다. 서버 사본의 이름은 사용자 이름을 붙여 변경됩니다.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>튜토리얼: Nimbulo Pelora로 동기화하는 방법을 알아봅니다.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>서버 ID &quot;%1&quot;이(가) 존재하지 않습니다.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>로그인할 때 Nimbulo Pelora 시작</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>서버의 폴더와 이 컴퓨터의 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>이 동기화 작업은 다른 서버에 속해 있습니다.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>서버에서 이 버전의 Nimbulo Pelora가 지원하지 않는 프로토콜을 사용하고 있습니다.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>디스크가 가득 찼습니다. Nimbulo Pelora에서 동기화를 일시 중지했습니다.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Nimbulo Pelora에 오류가 발생했습니다. 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>선택한 폴더가 비어 있지 않습니다. 폴더 안의 파일이 서버에 업로드됩니다.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>서버의 변경 사항만 다운로드</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>이제 파일이 서버의 &quot;%1&quot; 폴더와 동기화되고 있습니다.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1이(가) 이미 설치되어 있습니다.\n다시 설치하시겠습니까?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>여유 공간이 부족하여 &quot;%1&quot;을(를) 동기화할 수 없습니다. 공간을 확보한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>이 컴퓨터의 파일을 서버와 동기화된 상태로 유지합니다.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>선택한 위치에 &quot;Varnex Pelora&quot; 폴더 만들기</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>최신 버전의 Varnex Pelora(%1)가 이미 설치되어 있습니다.\n설치 프로그램을 종료합니다.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>서버에서 원하는 폴더를 동기화합니다.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>자동 설정에 실패했습니다. Nimbulo Pelora를 수동으로 설정하십시오.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>자동 설정 마무리 중...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>공유</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>데이터가 없습니다.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>사용할 수 있는 공유 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>파일 또는 폴더가 존재하지 않습니다.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>관리자가 Nimbulo Pelora를 구성했습니다.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>내부 사용자</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>서버 사용자가 파일을 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>서버 사용자가 파일을 보고 편집할 수 있습니다.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>특정 사용자</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>초대한 사용자만 파일에 액세스할 수 있습니다.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>링크가 있는 모든 사용자</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>링크가 있는 모든 사용자가 파일을 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>링크가 있는 모든 사용자가 파일을 보고 편집할 수 있습니다.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>보기 가능</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>편집 가능</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>초대</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>링크</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>링크 권한:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>사용자 및 그룹</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>메뉴 막대에 흑백 아이콘 사용</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>파일 창의 사이드바에 동기화 폴더 표시</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>디스플레이</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>서버에 연결할 수 없음</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 님이 %2에 댓글을 남겼습니다</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 님이 %2에서 회원님을 언급했습니다</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 님이 %2에 대한 액세스를 요청했습니다</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 님이 %2을(를) 회원님과 공유했습니다</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>웹 포털에서 열기</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>동기화</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>공유됨</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>설정하기</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 님이 이 파일에 대한 액세스를 요청하고 있습니다.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>댓글</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>멘션</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>나와 공유된 폴더도 동기화하시겠습니까?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>단방향 업로드</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>로컬에서 파일을 제거해도 서버의 파일은 제거하지 않음</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>&quot;%1&quot;이(가) 다운로드되었습니다.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>모든 기기에서 파일이 동기화되었습니다.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>웹 포털에서도 파일에 액세스할 수 있습니다.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>동기화 작업이 준비되었습니다.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>둘러보기 시작</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>다른 사용자가 나와 공유한 파일과 폴더도 이 컴퓨터에 동기화할 수 있습니다.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>나중에 하기</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>지금 동기화</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>나와 공유됨</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>동기화 작업 만들기</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>동기화할 항목을 선택하십시오.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>일반 동기화 작업</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>나와 공유된 파일</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>다른 사용자가 나와 공유한 파일과 폴더를 동기화합니다.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>NAS의 폴더와 이 컴퓨터의 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>이 동기화 작업은 다른 NAS에 속해 있습니다.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>NAS에서 이 버전의 Nimbulo Pelora가 지원하지 않는 프로토콜을 사용하고 있습니다.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>디스크가 가득 찼습니다. 동기화가 일시 중지되었습니다.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>NAS의 변경 사항만 다운로드</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Nimbulo Pelora를 업데이트할 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>이미 이 NAS에 연결되어 있습니다.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>네트워크 드라이브의 변경 사항은 늦게 감지될 수 있습니다.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>%1의 SSL 인증서가 변경되었습니다.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>서버와 보안 연결을 설정할 수 없습니다.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>환영합니다!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>NAS의 홈 폴더에 있는 파일이 이제 %1에 있습니다.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>서버의 홈 폴더에 있는 파일이 이제 %1에 있습니다.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>디스크가 가득 참</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>서버의 동기화 서비스가 오래됨</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>공유 폴더가 더 이상 존재하지 않습니다.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>클릭하여 Nimbulo Pelora %1(으)로 업데이트</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>이 버전의 Nimbulo Pelora는 너무 오래되어 서버에 연결할 수 없습니다. 업데이트하십시오.</translation>
    </message>
</context>
</TS>
