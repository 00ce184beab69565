<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>DeviceList</name>
    <message>
        <source>Built-in camera</source>
        <translation>내장 카메라</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>connecting…</source>
        <translation>연결 중…</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>acquiring</source>
        <translation>이미지 획득 중</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>연결 끊김</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>연결 안 됨</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>열기(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>목록에서 제거(&amp;R)</translation>
    </message>
</context>
<context>
    <name>DevicePage</name>
    <message>
        <source>Start acquisition</source>
        <translation>이미지 획득 시작</translation>
    </message>
    <message>
        <source>Stop acquisition</source>
        <translation>이미지 획득 중지</translation>
    </message>
    <message>
        <source>Load user set</source>
        <translation>사용자 세트 불러오기</translation>
    </message>
    <message>
        <source>Load user set %1?</source>
        <translation>사용자 세트 %1을(를) 불러오시겠습니까?</translation>
    </message>
    <message>
        <source>Settings of this camera were changed and are in no user set. Loading replaces them.</source>
        <translation>이 카메라의 설정이 변경되었지만 어느 사용자 세트에도 저장되지 않았습니다. 불러오면 변경된 설정을 덮어씁니다.</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>불러오기</translation>
    </message>
    <message>
        <source>Load user set %1</source>
        <translation>사용자 세트 %1 불러오기</translation>
    </message>
    <message>
        <source>Save to user set %1</source>
        <translation>사용자 세트 %1에 저장</translation>
    </message>
    <message>
        <source>Trigger mode %1</source>
        <translation>트리거 모드 %1</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>설정 저장</translation>
    </message>
    <message>
        <source>Nothing was saved. These settings could not be read: %1</source>
        <translation>아무것도 저장하지 않았습니다. 다음 설정을 읽을 수 없었습니다: %1</translation>
    </message>
    <message>
        <source>While the camera is acquiring, none of its settings can be saved. Stop the acquisition first.</source>
        <translation>카메라가 이미지를 획득하는 동안에는 설정을 저장할 수 없습니다. 먼저 이미지 획득을 중지하십시오.</translation>
    </message>
    <message>
        <source>This camera has no trigger setting that can be saved now.</source>
        <translation>이 카메라에는 지금 저장할 수 있는 트리거 설정이 없습니다.</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>설정 (*.json)</translation>
    </message>
    <message>
        <source>Settings saved in %1</source>
        <translation>설정을 %1에 저장했습니다</translation>
    </message>
    <message>
        <source>Apply settings</source>
        <translation>설정 적용</translation>
    </message>
    <message>
        <source>Applying the settings…</source>
        <translation>설정을 적용하는 중…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>1 setting applied</source>
        <translation>설정 1개를 적용했습니다</translation>
    </message>
    <message>
        <source>%1 settings applied</source>
        <translation>설정 %1개를 적용했습니다</translation>
    </message>
    <message>
        <source>%1 of %2 settings were applied to %3. These were not:</source>
        <translation>설정 %2개 중 %1개를 %3에 적용했습니다. 다음 설정은 적용하지 못했습니다:</translation>
    </message>
    <message>
        <source>%1 of %2 settings applied</source>
        <translation>설정 %2개 중 %1개를 적용했습니다</translation>
    </message>
    <message>
        <source>Not connected to %1.</source>
        <translation>%1에 연결되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>%1에 연결하는 중…</translation>
    </message>
    <message>
        <source>There is no connection to %1.</source>
        <translation>%1에 연결할 수 없습니다.</translation>
    </message>
    <message>
        <source>The connection to %1 was lost.</source>
        <translation>%1 연결이 끊어졌습니다.</translation>
    </message>
    <message>
        <source>Another program controls this camera: settings can be read, not changed.</source>
        <translation>다른 프로그램이 이 카메라를 제어하고 있습니다. 설정을 읽을 수는 있지만 변경할 수 없습니다.</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>다시 연결(&amp;R)</translation>
    </message>
    <message>
        <source>%1 was not executed: %2</source>
        <translation>%1 실행 실패: %2</translation>
    </message>
    <message>
        <source>%1 was not set to %2: %3</source>
        <translation>%1 설정 실패(값 %2): %3</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: 완료</translation>
    </message>
</context>
<context>
    <name>GenicamDevice</name>
    <message>
        <source>no such node of this type</source>
        <translation>해당 이름과 유형의 노드가 없습니다</translation>
    </message>
    <message>
        <source>another program controls the camera</source>
        <translation>다른 프로그램이 카메라를 제어하고 있습니다</translation>
    </message>
    <message>
        <source>cannot be written now</source>
        <translation>지금은 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>지금은 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>it does not describe itself</source>
        <translation>장치가 자체 설명 정보를 제공하지 않습니다</translation>
    </message>
    <message>
        <source>the device holds no number</source>
        <translation>장치에 있는 값이 숫자가 아닙니다</translation>
    </message>
    <message>
        <source>the device holds no entry</source>
        <translation>장치에 있는 값이 어느 항목에도 해당하지 않습니다</translation>
    </message>
    <message>
        <source>%1 is not a multiple of %2 above the minimum</source>
        <translation>%1에서 최솟값을 뺀 값이 %2의 배수가 아닙니다</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>숫자가 아닙니다</translation>
    </message>
    <message>
        <source>the text contains a NUL</source>
        <translation>텍스트에 NUL 문자가 있습니다</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this file, in that language.</extracomment>
        <translation>한국어</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Trigger Viewer</source>
        <translation>트리거 뷰어</translation>
    </message>
    <message>
        <source>%1 – Trigger Viewer</source>
        <translation>%1 – 트리거 뷰어</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>카메라(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Start acquisition</source>
        <translation>이미지 획득 시작(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;top acquisition</source>
        <translation>이미지 획득 중지(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Load user set</source>
        <translation>사용자 세트 불러오기(&amp;L)</translation>
    </message>
    <message>
        <source>Trigger &amp;mode</source>
        <translation>트리거 모드(&amp;M)</translation>
    </message>
    <message>
        <source>Change the trigger mode outside the panel</source>
        <translation>패널 밖에서 트리거 모드를 변경합니다</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>언어(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>통신 로그</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>노드</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Not available now</source>
        <translation>지금은 사용할 수 없음</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>장치(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Connect…</source>
        <translation>연결(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Find cameras</source>
        <translation>카메라 검색(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>다시 연결(&amp;R)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>닫기(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save settings…</source>
        <translation>설정 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Apply settings…</source>
        <translation>설정 적용(&amp;A)…</translation>
    </message>
    <message>
        <source>Save to &amp;user set</source>
        <translation>사용자 세트에 저장(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Refresh nodes</source>
        <translation>노드 새로 고침(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Trigger Viewer</source>
        <translation>트리거 뷰어 정보(&amp;A)</translation>
    </message>
    <message>
        <source>About Trigger Viewer</source>
        <translation>트리거 뷰어 정보</translation>
    </message>
    <message>
        <source>No device is open.</source>
        <translation>열려 있는 장치가 없습니다.</translation>
    </message>
    <message>
        <source>Connect…</source>
        <translation>연결…</translation>
    </message>
    <message>
        <source>Open the built-in camera</source>
        <translation>내장 카메라 열기</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>&amp;IPv4 address of the camera:</source>
        <translation>카메라의 IPv4 주소(&amp;I):</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>카메라를 검색하는 중…</translation>
    </message>
    <message>
        <source>No camera answered</source>
        <translation>응답한 카메라가 없습니다</translation>
    </message>
    <message>
        <source>1 camera found</source>
        <translation>카메라 1대를 찾았습니다</translation>
    </message>
    <message>
        <source>%1 cameras found</source>
        <translation>카메라 %1대를 찾았습니다</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Trigger Viewer %1&lt;/h3&gt;&lt;p&gt;Shows and changes the trigger settings of smart cameras.&lt;/p&gt;&lt;p&gt;Uses Qt, Aravis and GLib under the GNU Lesser General Public License.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;트리거 뷰어 %1&lt;/h3&gt;&lt;p&gt;스마트 카메라의 트리거 설정을 표시하고 변경합니다.&lt;/p&gt;&lt;p&gt;Qt, Aravis, GLib를 GNU Lesser General Public License에 따라 사용합니다.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>NetworkLink</name>
    <message>
        <source>it is not the IPv4 address of a camera, such as 192.168.0.10</source>
        <translation>카메라의 IPv4 주소가 아닙니다(예: 192.168.0.10)</translation>
    </message>
    <message>
        <source>no camera answers</source>
        <translation>응답하는 카메라가 없습니다</translation>
    </message>
    <message>
        <source>The camera is gone, was restarted, or obeys another program now.</source>
        <translation>카메라가 사라졌거나 다시 시작되었거나 지금은 다른 프로그램이 제어하고 있습니다.</translation>
    </message>
    <message>
        <source>The camera does not answer any more.</source>
        <translation>카메라가 더 이상 응답하지 않습니다.</translation>
    </message>
</context>
<context>
    <name>NodeModel</name>
    <message>
        <source>not implemented</source>
        <translation>구현 안 됨</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>사용 불가</translation>
    </message>
    <message>
        <source>write-only</source>
        <translation>쓰기 전용</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>read/write</source>
        <translation>읽기/쓰기</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>노드</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>접근 권한</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>범위</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>단위</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>step %1</source>
        <translation>증분 %1</translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Refresh</source>
        <translation>새로 고침</translation>
    </message>
</context>
<context>
    <name>ParamPageWidgetItem</name>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>홀드</translation>
    </message>
    <message>
        <source>SoftwareTrigger</source>
        <translation>소프트웨어 트리거</translation>
    </message>
    <message>
        <source>IOTrigger</source>
        <translation>I/O 트리거</translation>
    </message>
    <message>
        <source>TcpServer</source>
        <translation>TCP 서버</translation>
    </message>
    <message>
        <source>TcpClient</source>
        <translation>TCP 클라이언트</translation>
    </message>
    <message>
        <source>Udp</source>
        <translation>UDP</translation>
    </message>
    <message>
        <source>RS-232</source>
        <translation>RS-232</translation>
    </message>
    <message>
        <source>AutoTrigger</source>
        <translation>자동 트리거</translation>
    </message>
    <message>
        <source>SensingTrigger</source>
        <translation>감지 트리거</translation>
    </message>
    <message>
        <source>Master-Slave</source>
        <translation>마스터-슬레이브</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>16진수</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>실행</translation>
    </message>
    <message>
        <source>Trigger Mode</source>
        <translation>트리거 모드</translation>
    </message>
    <message>
        <source>Trigger Source</source>
        <translation>트리거 소스</translation>
    </message>
    <message>
        <source>Software Trigger</source>
        <translation>소프트웨어 트리거</translation>
    </message>
    <message>
        <source>Trigger Delay(ms)</source>
        <translation>트리거 지연(ms)</translation>
    </message>
    <message>
        <source>Follow IO level signal</source>
        <translation>I/O 레벨 추종</translation>
    </message>
    <message>
        <source>Trigger Cache</source>
        <translation>트리거 버퍼</translation>
    </message>
    <message>
        <source>Key Trigger</source>
        <translation>버튼 트리거</translation>
    </message>
    <message>
        <source>TCP Port</source>
        <translation>TCP 포트</translation>
    </message>
    <message>
        <source>Fuzzy Command Matching</source>
        <translation>명령 퍼지 매칭</translation>
    </message>
    <message>
        <source>Command Format</source>
        <translation>명령 형식</translation>
    </message>
    <message>
        <source>Start Trigger Command</source>
        <translation>트리거 시작 명령</translation>
    </message>
    <message>
        <source>FTP Save Image Command</source>
        <translation>FTP 이미지 저장 명령</translation>
    </message>
    <message>
        <source>Auto Trigger Interval(ms)</source>
        <translation>자동 트리거 간격(ms)</translation>
    </message>
    <message>
        <source>Sensing Sensitivity</source>
        <translation>감지 감도</translation>
    </message>
    <message>
        <source>Sensing Wait Period(ms)</source>
        <translation>감지 대기 시간(ms)</translation>
    </message>
    <message>
        <source>Server IP</source>
        <translation>서버 IP</translation>
    </message>
    <message>
        <source>Server Port</source>
        <translation>서버 포트</translation>
    </message>
    <message>
        <source>Heartbeat Enable</source>
        <translation>하트비트 사용</translation>
    </message>
    <message>
        <source>Heartbeat Command</source>
        <translation>하트비트 명령</translation>
    </message>
    <message>
        <source>Heartbeat Interval(ms)</source>
        <translation>하트비트 간격(ms)</translation>
    </message>
    <message>
        <source>UDP Port</source>
        <translation>UDP 포트</translation>
    </message>
    <message>
        <source>Baud Rate</source>
        <translation>보드레이트</translation>
    </message>
    <message>
        <source>Flow Control</source>
        <translation>흐름 제어</translation>
    </message>
    <message>
        <source>Stop Bit</source>
        <translation>정지 비트</translation>
    </message>
    <message>
        <source>Parity Bit</source>
        <translation>패리티 비트</translation>
    </message>
    <message>
        <source>Data Bit</source>
        <translation>데이터 비트</translation>
    </message>
    <message>
        <source>Stop Condition</source>
        <translation>중지 조건</translation>
    </message>
    <message>
        <source>Triggered Frame Count</source>
        <translation>트리거 프레임 수</translation>
    </message>
    <message>
        <source>Trigger Duration(ms)</source>
        <translation>트리거 지속 시간(ms)</translation>
    </message>
    <message>
        <source>Decoding Count</source>
        <translation>디코딩 수</translation>
    </message>
    <message>
        <source>Code Counting Enable</source>
        <translation>코드 카운트 사용</translation>
    </message>
    <message>
        <source>Stop Trigger Command</source>
        <translation>트리거 중지 명령</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>String</source>
        <translation>문자열</translation>
    </message>
    <message>
        <source>FrameCount</source>
        <translation>프레임 수</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>지속 시간</translation>
    </message>
    <message>
        <source>DecodeCount</source>
        <translation>디코딩 수</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>홀수</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>짝수</translation>
    </message>
    <message>
        <source>RtsCts</source>
        <translation>RTS/CTS</translation>
    </message>
    <message>
        <source>XonXoff</source>
        <translation>XON/XOFF</translation>
    </message>
</context>
<context>
    <name>RecordTable</name>
    <message>
        <source>Filter</source>
        <translation>필터</translation>
    </message>
</context>
<context>
    <name>SettingsApplier</name>
    <message>
        <source>not reached</source>
        <translation>처리되지 않았습니다</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>거부되었습니다</translation>
    </message>
    <message>
        <source>cannot be read back</source>
        <translation>다시 읽어 확인할 수 없습니다</translation>
    </message>
    <message>
        <source>this camera has no such node</source>
        <translation>이 카메라에 해당 노드가 없습니다</translation>
    </message>
    <message>
        <source>cannot be written in the present mode</source>
        <translation>현재 모드에서는 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>the camera no longer answers</source>
        <translation>카메라가 더 이상 응답하지 않습니다</translation>
    </message>
    <message>
        <source>this node of the camera is of another type</source>
        <translation>카메라의 이 노드는 유형이 다릅니다</translation>
    </message>
    <message>
        <source>can only be read now (is the camera acquiring?)</source>
        <translation>지금은 읽기만 가능합니다(카메라가 이미지를 획득하는 중입니까?)</translation>
    </message>
    <message>
        <source>the camera holds %1 instead</source>
        <translation>카메라의 실제 값은 %1입니다</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>쓸 수 없습니다</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>the key %1 is not known</source>
        <translation>키 %1을(를) 알 수 없습니다</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1행: %2</translation>
    </message>
    <message>
        <source>this is no file of trigger settings</source>
        <translation>트리거 설정 파일이 아닙니다</translation>
    </message>
    <message>
        <source>the version is %1, and only %2 is known</source>
        <translation>버전이 %1이지만 %2만 지원합니다</translation>
    </message>
    <message>
        <source>this node is there twice</source>
        <translation>이 노드가 중복되어 있습니다</translation>
    </message>
    <message>
        <source>the type %1 is not known</source>
        <translation>유형 %1을(를) 알 수 없습니다</translation>
    </message>
    <message>
        <source>the value %1 is none of type %2</source>
        <translation>값 %1: 유형 %2의 값이 아닙니다</translation>
    </message>
    <message>
        <source>&quot;nodes&quot; is no list</source>
        <translation>&quot;nodes&quot; 항목이 목록이 아닙니다</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>파일이 너무 큽니다</translation>
    </message>
    <message>
        <source>the name is missing</source>
        <translation>이름이 없습니다</translation>
    </message>
    <message>
        <source>entry %1, %2: %3</source>
        <translation>%1번째 항목, %2: %3</translation>
    </message>
</context>
<context>
    <name>TrafficModel</name>
    <message>
        <source>Time</source>
        <translation>시각</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>노드</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Duration (µs)</source>
        <translation>소요 시간(µs)</translation>
    </message>
</context>
<context>
    <name>TrafficView</name>
    <message>
        <source>Save traffic</source>
        <translation>통신 로그 저장</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV 파일 (*.csv)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Writes only</source>
        <translation>쓰기만</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>저장…</translation>
    </message>
</context>
<context>
    <name>TriggerConfigWdgImpl</name>
    <message>
        <source>TCP Server</source>
        <translation>TCP 서버</translation>
    </message>
    <message>
        <source>Auto Trigger</source>
        <translation>자동 트리거</translation>
    </message>
    <message>
        <source>Sensing Trigger</source>
        <translation>감지 트리거</translation>
    </message>
    <message>
        <source>TCP Client</source>
        <translation>TCP 클라이언트</translation>
    </message>
    <message>
        <source>UDP</source>
        <translation>UDP</translation>
    </message>
    <message>
        <source>RS-232</source>
        <translation>RS-232</translation>
    </message>
</context>
<context>
    <name>TriggerStopConfigWdg</name>
    <message>
        <source>Config </source>
        <translation>설정 </translation>
    </message>
</context>
<context>
    <name>VyTriggerConfigWidgetImpl</name>
    <message>
        <source>Form</source>
        <translation>폼</translation>
    </message>
    <message>
        <source>Trigger Config</source>
        <translation>트리거 설정</translation>
    </message>
    <message>
        <source>Trigger Stop Config</source>
        <translation>트리거 중지 설정</translation>
    </message>
</context>
<context>
    <name>VyViewer::VyBlockWidget</name>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>%1에 추가</translation>
    </message>
</context>
<context>
    <name>VyViewer::VyMultiCheckTitleWidget</name>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 삭제</translation>
    </message>
</context>
</TS>
