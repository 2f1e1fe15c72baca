<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Gallery</name>
    <message><source>vorlin gallery</source><translation>vorlin 控件展示</translation></message>
    <message><source>Application</source><translation>应用程序</translation></message>
</context>
<context>
    <name>LogPage</name>
    <message><source>Language</source><translation>语言</translation></message>
    <message><source>Current log file</source><translation>当前日志文件</translation></message>
    <message><source>Split size</source><translation>分割大小</translation></message>
    <message><source>Log a debug line</source><translation>写一条调试日志</translation></message>
    <message><source>Log a warning</source><translation>写一条警告</translation></message>
    <message><source>Play the notice twice</source><translation>播放提示音两次</translation></message>
    <message><source>Speak</source><translation>朗读</translation></message>
</context>
</TS>
