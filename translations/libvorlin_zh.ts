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
</TS>
