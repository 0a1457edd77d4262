target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/CKVPoint2D.h
    ${CMAKE_CURRENT_LIST_DIR}/Point3D.h
)
