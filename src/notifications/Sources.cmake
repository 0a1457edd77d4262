target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/Notifications.h ${CMAKE_CURRENT_LIST_DIR}/Notifications.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NotificationsButtonsSelectionModel.h ${CMAKE_CURRENT_LIST_DIR}/NotificationsButtonsSelectionModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NotificationsFilterModel.h ${CMAKE_CURRENT_LIST_DIR}/NotificationsFilterModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NotificationsLogging.h ${CMAKE_CURRENT_LIST_DIR}/NotificationsLogging.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NotificationsModel.h ${CMAKE_CURRENT_LIST_DIR}/NotificationsModel.cpp
)
