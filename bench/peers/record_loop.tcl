# The record loop of engine_bench (loopOf1000Records) as a Tcl script does it: text is put together, a number formatted,
# a text split and replaced in, once a record. Prints microseconds a loop.
proc card {records} {
  set lines {}
  for {set i 1} {$i <= $records} {incr i} {
    set v(NAME) "Player $i"
    set v(PTS) [expr {$i * 2}]
    set v(AVG) [format %.2f [expr {$v(PTS) / 7.0}]]
    if {$v(PTS) > 500} {set v(COL) red} else {set v(COL) green}
    set v(FULL) [string map {Player P} $v(NAME)]
    dict set data "t-0*NAME$i" $v(FULL)
    dict set data "t-0*PTS$i" $v(PTS)
    dict set data "t-0*AVG$i" $v(AVG)
    set parts [split "a,b,c" ,]
    lappend lines "CG 1-20 UPDATE 1 \"$v(FULL) $v(PTS) $v(AVG) $v(COL) [lindex $parts 1]\""
  }
  return [llength $lines]
}
card 1000
puts [lindex [time {card 1000} 200] 0]
