# fish completion for corvalis: options, kinds of disc, files by kind.

set -l audio wma wav cda mp3 mp2 mpga m4a aac ac3 aif aiff ape flac m4b mka oga ogg opus wv m3u m3u8 pls xspf
set -l video wmv mov mpg mpeg mpe avi asf asx qt mp4 mpeg-4 flv ts 3gp fli m1v m2v mjpg m2ts m4v mkv mts ogv vob webm m3u m3u8 pls xspf

# The files and folders whose names begin as the current word does and that go on what the words before it name.
function __corvalis_files -V audio -V video
    set -l words (commandline -opc)
    set -l endings
    switch "$words"
        case '*--burn Audio*' '*--burn MP3*'
            set endings $audio
        case '*--burn Video*'
            set endings $video
        case '*--burn Data*'
            __fish_complete_path (commandline -ct)
            return
        case '*'
            set endings $audio $video corvalis iso img dmg
    end
    __fish_complete_path (commandline -ct) | string match -rie '\.(?:'(string join '|' $endings)')(?:\t|$)|/(?:\t|$)'
end

complete -c corvalis -f
complete -c corvalis -n 'not __fish_seen_argument -l action' -a '(__corvalis_files)'
complete -c corvalis -l burn -x -a '"Audio CD" "MP3 CD" "MP3 DVD" "Video DVD" "Video Blu-ray" "Data CD" "Data DVD" "Data Blu-ray"' -d 'Make a disc of this kind and end'
complete -c corvalis -l show -n '__fish_contains_opt burn' -d 'Do so in the window, which stays'
complete -c corvalis -l for-players -n '__fish_contains_opt burn' -d 'A Video DVD with titles and chapters'
complete -c corvalis -l new-window -n 'not __fish_contains_opt burn' -d 'Open the files in a window of their own'
complete -c corvalis -l action -x -n 'not __fish_contains_opt burn' -a 'new-audio-cd new-data-disc write-image copy-disc' -d 'Begin it in the window'
complete -c corvalis -s h -l help -d 'Print the options and end'
complete -c corvalis -s v -l version -d 'Print the version and end'
