<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>IMainWindow</name>
    <message>
        <source> LinkStatus: </source>
        <translation> 连接状态: </translation>
    </message>
</context>
<context>
    <name>PathEdit</name>
    <message>
        <source>open file path</source>
        <translation>打开文件路径</translation>
    </message>
    <message>
        <source>Select File</source>
        <translation>选择文件</translation>
    </message>
</context>
</TS>
