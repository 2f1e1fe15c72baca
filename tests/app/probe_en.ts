<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Probe</name>
    <message><source>hello</source><translation>hello (en)</translation></message>
</context>
</TS>
